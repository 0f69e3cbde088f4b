#include "languages/TextLayout.h"

#include <QFontMetricsF>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTextLayout>

#include <algorithm>

namespace tessarine::testing {

namespace {

using namespace Qt::StringLiterals;

constexpr double tolerance = 0.75; // points, since glyphs are placed at fractions of them
constexpr double overlap = 2;      // as far as lines of text reach into each other by their metrics

bool isText(const QQuickItem& item) {
    return (item.inherits("QQuickText") || item.inherits("QQuickTextEdit")) &&
           !item.property("text").toString().trimmed().isEmpty();
}

// Where what is drawn begins in a room that is larger, by the alignment.
double offset(int alignment, int end, int centre, double room, double drawn) {
    if (alignment == end)
        return room - drawn;
    return alignment == centre ? (room - drawn) / 2 : 0;
}

QRectF drawnPart(const QQuickItem& text) {
    const double width = text.property("contentWidth").toDouble();
    const double height = text.property("contentHeight").toDouble();
    const int across = text.property("effectiveHorizontalAlignment").toInt();
    const int down = text.property("verticalAlignment").toInt();
    return {offset(across, Qt::AlignRight, Qt::AlignHCenter, text.width(), width),
            offset(down, Qt::AlignBottom, Qt::AlignVCenter, text.height(), height), width, height};
}

bool holds(const QRectF& room, const QRectF& place) {
    return room.adjusted(-tolerance, -tolerance, tolerance, tolerance).contains(place);
}

// What can be scrolled to, from side to side only as far as it is in sight.
QRectF scrollRoom(const QQuickItem& flickable) {
    return {0, flickable.property("originY").toDouble(), flickable.width(),
            std::max(flickable.property("contentHeight").toDouble(), flickable.height())};
}

QRectF placeOf(const QQuickItem& item) {
    return item.mapRectToScene(QRectF(0, 0, item.width(), item.height()));
}

// Of what is drawn of a text with line breaks, or of a paragraph.
qsizetype longestLineIn(const QString& text, const QFont& font, double width, int wrapMode,
                        int mostLines) {
    QTextLayout layout(text, font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapMode(wrapMode));
    layout.setTextOption(option);
    qsizetype longest = 0;
    layout.beginLayout();
    for (int lines = 0; lines < mostLines; ++lines) {
        QTextLine line = layout.createLine();
        if (!line.isValid())
            break;
        line.setLineWidth(width);
        const QString shown = text.mid(line.textStart(), line.textLength()).trimmed();
        longest = std::max(longest, shown.size());
    }
    layout.endLayout();
    return longest;
}

qsizetype longestLineOf(const QQuickItem& item) {
    const QString text = item.property("text").toString().replace(u'\n', QChar::LineSeparator);
    const auto font = item.property("font").value<QFont>();
    const int wrapMode = item.property("wrapMode").toInt();
    if (wrapMode == QTextOption::NoWrap)
        return QFontMetricsF(font).elidedText(text, Qt::ElideRight, item.width()).size();
    return longestLineIn(text, font, item.width(), wrapMode, item.property("lineCount").toInt());
}

void look(const QQuickItem& item, const QQuickWindow& window, ShownText& shown) {
    shown.place = item.mapRectToScene(drawnPart(item));
    shown.sight = shown.place;
    QRectF place = shown.place; // of the text, or of the outermost thing that scrolls it
    for (const QQuickItem* above = item.parentItem(); above; above = above->parentItem()) {
        if (above->inherits("QQuickFlickable")) {
            const auto* content = above->property("contentItem").value<QQuickItem*>();
            const QRectF inside = content->mapRectFromScene(place);
            shown.isCut |= !holds(scrollRoom(*above), inside);
            place = placeOf(*above);
            shown.sight &= place;
        } else if (above->clip()) {
            shown.isCut |= !holds(placeOf(*above), place);
        }
        if (above->inherits("QQuickPopupItem") && !shown.layer)
            shown.layer = above;
    }
    shown.isCut |= !holds(QRectF(QPointF(), window.size()), place);
}

ShownText shownText(const QQuickItem& item, const QQuickWindow& window) {
    const QRectF drawn = drawnPart(item);
    ShownText shown{item.property("text").toString(),
                    {},
                    item.property("truncated").toBool() ||
                        drawn.width() > item.width() + tolerance ||
                        drawn.height() > item.height() + tolerance,
                    nullptr,
                    {},
                    double(window.width()),
                    item.inherits("QQuickTextEdit"),
                    longestLineOf(item)};
    look(item, window, shown);
    return shown;
}

void collect(const QQuickItem& item, const QQuickWindow& window, QList<ShownText>& texts) {
    if (!item.isVisible() || item.opacity() == 0)
        return;
    if (isText(item))
        texts << shownText(item, window);
    for (const QQuickItem* child : item.childItems())
        collect(*child, window, texts);
}

bool overlaps(const ShownText& one, const ShownText& other) {
    const QRectF both = one.sight & other.sight;
    return one.layer == other.layer && both.width() > overlap && both.height() > overlap;
}

} // namespace

QList<ShownText> shownTexts(const QQuickWindow& window) {
    QList<ShownText> texts;
    collect(*window.contentItem(), window, texts);
    return texts;
}

QStringList faultsOf(const QList<ShownText>& texts) {
    QStringList faults;
    for (qsizetype i = 0; i < texts.size(); ++i) {
        const ShownText& text = texts[i];
        if (text.isCut)
            faults << u"cut: "_qs + text.text;
        for (qsizetype j = i + 1; j < texts.size(); ++j) {
            if (overlaps(text, texts[j]))
                faults << u"overlap: "_qs + text.text + u" | "_qs + texts[j].text;
        }
    }
    return faults;
}

} // namespace tessarine::testing
