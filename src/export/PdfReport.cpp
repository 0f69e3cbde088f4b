#include "export/PdfReport.h"

#include "export/ExportRecords.h"
#include "export/ReportCanvas.h"
#include "shared/Text.h"
#include "theme/Fonts.h"

#include <algorithm>

namespace tessarine {

namespace {

QColor gray(double white) {
    return QColor::fromRgbF(float(white), float(white), float(white));
}

const QColor headingColour = gray(0.10);
const QColor cellColour = gray(0.20);
const QColor mutedColour = gray(0.55);
const QColor accentColour(0, 122, 255);
const QColor dayRuleColour = gray(0.85);
const QColor bandColour = gray(0.96);
const QColor tableHeaderColour = gray(0.14);
const QColor paperColour = gray(1.0);

// Between the margins.
constexpr double left = 48;
constexpr double right = 547;
constexpr double textWidth = right - left;
constexpr double contentTop = 786;    // cursors count downwards from here
constexpr double contentHeight = 738; // as far as a cursor may come

// Of the window's faces the report has their families alone: slant, weight and whatever else the
// desktop's font has been given belong to that desktop, and a report looks the same from each.
QFont reportFont(const QFont& face, double size, QFont::Weight weight) {
    QFont font(face.families());
    font.setPointSizeF(size);
    font.setWeight(weight);
    return font;
}

QFont systemFont(double size, QFont::Weight weight) {
    return reportFont(textFont(), size, weight);
}

QFont monospacedSystemFont(double size) {
    return reportFont(monospacedFont(), size, QFont::Normal);
}

void finishPage(ReportCanvas& canvas, int number) {
    const QFont font = systemFont(7.5, QFont::Normal);
    constexpr double top = 24;
    canvas.drawText(QStringLiteral("Tessarine — Confidential"), font, mutedColour, left, top,
                    299.4);
    canvas.drawText(QStringLiteral("Page %1").arg(number), font, mutedColour, left, top, textWidth,
                    ReportAlignment::right);
    canvas.strokeLine(left, right, 792, accentColour, 0.5);
}

// Page 1: what the report is, and how often each application is in it.
class Summary {
public:
    explicit Summary(ReportCanvas& canvas)
        : canvas_(canvas) {}

    void draw(const std::vector<PDFRow>& rows, double now) {
        canvas_.startPage();
        drawHeading(rows.size(), now);
        drawTableHeader();
        drawTable(appTallies(rows), rows.size());
        finishPage(canvas_, 1);
    }

private:
    static constexpr double firstRow = 157;
    static constexpr double rowHeight = 17;
    static constexpr std::size_t mostRows = 30;

    // 62 and twice 19 hundredths of the width, each with its text six points in.
    static constexpr double appX = 54;
    static constexpr double countX = 363.38;
    static constexpr double shareX = 458.19;

    void drawHeading(std::size_t total, double now) {
        const QFont plain = systemFont(10, QFont::Normal);
        canvas_.drawText(QStringLiteral("Tessarine"), systemFont(26, QFont::Bold), headingColour,
                         left, 774, textWidth);
        canvas_.drawText(QStringLiteral("Notification Archive Export"),
                         systemFont(15, QFont::Normal), accentColour, left, 742, textWidth);
        canvas_.strokeLine(left, right, 720, accentColour, 1.5);
        const DateFormatter moment = englishFormatter(QStringLiteral("d MMMM yyyy, HH:mm"));
        canvas_.drawText(QStringLiteral("Generated: ") + moment.text(now), plain, mutedColour, left,
                         710, textWidth);
        canvas_.drawText(QStringLiteral("Total notifications: %1").arg(total), plain, mutedColour,
                         left, 695, textWidth);
    }

    void drawTableHeader() {
        canvas_.drawText(QStringLiteral("Summary by App"), systemFont(12, QFont::DemiBold),
                         headingColour, left, 667, textWidth);
        canvas_.fillRect({left, 629, textWidth, 20}, tableHeaderColour);
        const QFont bold = systemFont(9, QFont::Bold);
        constexpr double top = 645;
        canvas_.drawText(QStringLiteral("App"), bold, paperColour, appX, top, 309.38);
        canvas_.drawText(QStringLiteral("Count"), bold, paperColour, countX, top, 94.81);
        canvas_.drawText(QStringLiteral("%"), bold, paperColour, shareX, top, 94.81);
    }

    // Shares are of all rows, also of those whose application finds no room in the table.
    void drawTable(const std::vector<AppTally>& tallies, std::size_t total) {
        const QFont font = systemFont(9, QFont::Normal);
        double cursor = firstRow;
        for (std::size_t i = 0; i < std::min(mostRows, tallies.size()); ++i) {
            if (i % 2 == 1)
                canvas_.fillRect({left, contentTop - (cursor + rowHeight), textWidth, rowHeight},
                                 bandColour);
            const double top = contentTop - cursor - 3;
            const auto count = double(tallies[i].count);
            const double share = count / std::max(double(total), 1.0) * 100;
            canvas_.drawText(tallies[i].appName, font, cellColour, appX, top, 301.38);
            canvas_.drawText(QString::number(tallies[i].count), font, cellColour, countX, top,
                             88.81);
            canvas_.drawText(fixedText(share, 1) + u'%', font, cellColour, shareX, top, 88.81);
            cursor += rowHeight;
        }
    }

    ReportCanvas& canvas_;
};

// The pages from 2 on. A cursor goes down the page; what would pass its end starts another.
class Log {
public:
    explicit Log(ReportCanvas& canvas)
        : canvas_(canvas) {}

    void draw(const std::vector<PDFRow>& rows) {
        startFirstPage();
        for (const DayGroup<PDFRow>& day : groupedByDay(rows, dates_.day)) {
            startDay(day);
            for (std::size_t i = 0; i < day.records.size(); ++i)
                addRow(*day.records[i], i);
        }
        finishPage(canvas_, pageNumber_);
    }

private:
    static constexpr double heightWithBody = 32;
    static constexpr double heightWithoutBody = 21;
    static constexpr double timeX = 52;
    static constexpr double pillX = 108;

    void startFirstPage() {
        canvas_.startPage();
        canvas_.drawText(QStringLiteral("Notification Log"), systemFont(14, QFont::DemiBold),
                         headingColour, left, contentTop, textWidth);
        canvas_.drawText(QStringLiteral("Sorted newest first, grouped by day."),
                         systemFont(9, QFont::Normal), mutedColour, left, 768, textWidth);
        cursor_ = 36;
    }

    void startNextPage() {
        finishPage(canvas_, pageNumber_);
        ++pageNumber_;
        canvas_.startPage();
        cursor_ = 0;
    }

    // A heading may stand alone at the end of a page, when its first row needs another.
    void startDay(const DayGroup<PDFRow>& day) {
        if (cursor_ + 32 > contentHeight)
            startNextPage();
        const double top = cursor_ + 6;
        canvas_.strokeLine(left, right, contentTop - top, dayRuleColour, 0.5);
        canvas_.drawText(day.key + QStringLiteral("  —  ") + notificationCount(day.records.size()),
                         systemFont(11, QFont::DemiBold), headingColour, left, contentTop - top,
                         textWidth);
        cursor_ = top + 18;
    }

    void addRow(const PDFRow& row, std::size_t indexInDay) {
        const double height = row.body.isEmpty() ? heightWithoutBody : heightWithBody;
        if (cursor_ + height + 4 > contentHeight)
            startNextPage();
        canvas_.fillRect({left, contentTop - (cursor_ + height), textWidth, height},
                         indexInDay % 2 == 0 ? paperColour : bandColour);
        drawRow(row);
        cursor_ += height;
    }

    void drawRow(const PDFRow& row) {
        const double top = contentTop - cursor_ - 1;
        canvas_.drawText(dates_.time.text(row.timestamp), monospacedSystemFont(8), mutedColour,
                         timeX, top, 52);
        const double x = pillX + drawPill(row.appName, top) + 8;
        const double width = textWidth - (x - left) - 4;
        canvas_.drawText(row.title.isEmpty() ? QStringLiteral("(no title)") : row.title,
                         systemFont(9, QFont::Medium), cellColour, x, top, width);
        if (!row.body.isEmpty())
            canvas_.drawText(row.body, systemFont(8.5, QFont::Normal), mutedColour, x,
                             contentTop - (cursor_ + 13) - 1, width);
    }

    // The application's name on a tinted ground, which is denser inside an ellipse. Its width goes
    // by the count of characters. Gives the width.
    double drawPill(const QString& appName, double top) {
        const double width = std::min(double(characterCount(appName)) * 6.2 + 10, 130.0);
        const QRectF rect(pillX, contentTop - (cursor_ + 11), width, 12);
        QColor tint = accentColour;
        tint.setAlphaF(0.12F);
        canvas_.fillEllipse(rect, tint);
        canvas_.fillRectAndRoundedRect(rect, 4, tint);
        canvas_.drawText(appName, systemFont(7.5, QFont::Medium), accentColour, 113, top,
                         width - 6);
        return width;
    }

    ReportCanvas& canvas_;
    const ExportDates dates_;
    int pageNumber_ = 2;
    double cursor_ = 0;
};

} // namespace

std::vector<AppTally> appTallies(const std::vector<PDFRow>& rows) {
    std::vector<AppTally> tallies;
    QHash<QString, std::size_t> tallyOfApp;
    for (const PDFRow& row : rows) {
        const auto found = tallyOfApp.constFind(row.appName);
        if (found != tallyOfApp.constEnd()) {
            ++tallies[*found].count;
        } else {
            tallyOfApp.insert(row.appName, tallies.size());
            tallies.push_back({row.appName, 1});
        }
    }
    std::stable_sort(tallies.begin(), tallies.end(),
                     [](const auto& left, const auto& right) { return left.count > right.count; });
    return tallies;
}

void writePdfReport(const std::vector<PDFRow>& rows, double now, QIODevice& device) {
    ReportCanvas canvas(device, QStringLiteral("Tessarine — Notification Archive Export"));
    if (!canvas.open())
        throw ExportError::renderFailed;
    Summary(canvas).draw(rows, now);
    Log(canvas).draw(rows);
    if (!canvas.close())
        throw ExportError::renderFailed;
}

} // namespace tessarine
