#include "bench/CairoReport.h"

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <map>
#include <string>

#include <cairo-pdf.h>
#include <cairo.h>

namespace tessarine::bench {

namespace {

constexpr double pageHeight = 842;
constexpr double unixSecondsAtReferenceDate = 978307200.0;

cairo_status_t append(void* bytes, const unsigned char* data, unsigned size) {
    static_cast<QByteArray*>(bytes)->append(reinterpret_cast<const char*>(data), int(size));
    return CAIRO_STATUS_SUCCESS;
}

std::string formatted(double timestamp, const char* format) {
    const auto seconds = std::time_t(timestamp + unixSecondsAtReferenceDate);
    std::tm parts{};
    localtime_r(&seconds, &parts);
    char buffer[32];
    return {buffer, std::strftime(buffer, sizeof buffer, format, &parts)};
}

class Report {
public:
    QByteArray made(const std::vector<PDFRow>& rows) {
        surface_ = cairo_pdf_surface_create_for_stream(append, &bytes_, 595, pageHeight);
        cairo_ = cairo_create(surface_);
        drawSummary(rows);
        drawLog(rows);
        cairo_destroy(cairo_);
        cairo_surface_finish(surface_);
        cairo_surface_destroy(surface_);
        return bytes_;
    }

private:
    void gray(double white) { cairo_set_source_rgb(cairo_, white, white, white); }
    void accent(double alpha = 1) { cairo_set_source_rgba(cairo_, 0, 122 / 255.0, 1, alpha); }

    void fillRect(double x, double y, double width, double height) {
        cairo_rectangle(cairo_, x, pageHeight - y - height, width, height);
        cairo_fill(cairo_);
    }

    void line(double y, double width) {
        cairo_set_line_width(cairo_, width);
        cairo_move_to(cairo_, 48, pageHeight - y);
        cairo_line_to(cairo_, 547, pageHeight - y);
        cairo_stroke(cairo_);
    }

    void text(const std::string& words, double size, bool bold, double x, double top, double width,
              bool right = false, const char* face = "Inter") {
        cairo_save(cairo_);
        cairo_select_font_face(cairo_, face, CAIRO_FONT_SLANT_NORMAL,
                               bold ? CAIRO_FONT_WEIGHT_BOLD : CAIRO_FONT_WEIGHT_NORMAL);
        cairo_set_font_size(cairo_, size);
        cairo_font_extents_t font;
        cairo_font_extents(cairo_, &font);
        const double baseline = pageHeight - (top + font.descent + 2 - font.ascent);
        cairo_text_extents_t extents;
        cairo_text_extents(cairo_, words.c_str(), &extents);
        if (extents.x_advance > width) {
            cairo_rectangle(cairo_, x, baseline - font.ascent, width, font.ascent + font.descent);
            cairo_clip(cairo_);
        }
        cairo_move_to(cairo_, right ? x + width - extents.x_advance : x, baseline);
        cairo_show_text(cairo_, words.c_str());
        cairo_restore(cairo_);
    }

    void startPage() {
        gray(1);
        fillRect(0, 0, 595, pageHeight);
    }

    void finishPage(int number) {
        gray(0.55);
        text("Tessarine — Confidential", 7.5, false, 48, 24, 299.4);
        text("Page " + std::to_string(number), 7.5, false, 48, 24, 499, true);
        accent();
        line(792, 0.5);
        cairo_show_page(cairo_);
    }

    void drawSummary(const std::vector<PDFRow>& rows) {
        startPage();
        gray(0.1);
        text("Tessarine", 26, true, 48, 774, 499);
        accent();
        text("Notification Archive Export", 15, false, 48, 742, 499);
        line(720, 1.5);
        gray(0.55);
        text("Generated: 3 March 2026, 09:15", 10, false, 48, 710, 499);
        text("Total notifications: " + std::to_string(rows.size()), 10, false, 48, 695, 499);
        gray(0.1);
        text("Summary by App", 12, true, 48, 667, 499);
        gray(0.14);
        fillRect(48, 629, 499, 20);
        gray(1);
        text("App", 9, true, 54, 645, 309.38);
        text("Count", 9, true, 363.38, 645, 94.81);
        text("%", 9, true, 458.19, 645, 94.81);
        drawTable(rows);
        finishPage(1);
    }

    void drawTable(const std::vector<PDFRow>& rows) {
        std::map<std::string, int> tallies;
        for (const PDFRow& row : rows)
            ++tallies[row.appName.toStdString()];
        double cursor = 157;
        int index = 0;
        for (const auto& [app, count] : tallies) {
            if (index == 30)
                break;
            gray(0.96);
            if (index++ % 2 == 1)
                fillRect(48, 786 - (cursor + 17), 499, 17);
            gray(0.2);
            char share[16];
            std::snprintf(share, sizeof share, "%.1f%%", count * 100.0 / double(rows.size()));
            text(app, 9, false, 54, 786 - cursor - 3, 301.38);
            text(std::to_string(count), 9, false, 363.38, 786 - cursor - 3, 88.81);
            text(share, 9, false, 458.19, 786 - cursor - 3, 88.81);
            cursor += 17;
        }
    }

    // The rows come in the order of their days.
    void drawLog(const std::vector<PDFRow>& rows) {
        startPage();
        gray(0.1);
        text("Notification Log", 14, true, 48, 786, 499);
        gray(0.55);
        text("Sorted newest first, grouped by day.", 9, false, 48, 768, 499);
        int page = 2;
        double cursor = 36;
        const auto turn = [&] {
            finishPage(page++);
            startPage();
            cursor = 0;
        };
        std::string day;
        int index = 0;
        for (const PDFRow& row : rows) {
            if (const std::string key = formatted(row.timestamp, "%Y-%m-%d"); key != day) {
                if (cursor + 32 > 738)
                    turn();
                cursor += 6;
                gray(0.85);
                line(786 - cursor, 0.5);
                gray(0.1);
                text(key + "  —  10 notifications", 11, true, 48, 786 - cursor, 499);
                cursor += 18;
                day = key;
                index = 0;
            }
            const double height = row.body.isEmpty() ? 21 : 32;
            if (cursor + height + 4 > 738)
                turn();
            gray(index++ % 2 == 0 ? 1 : 0.96);
            fillRect(48, 786 - (cursor + height), 499, height);
            drawRow(row, cursor);
            cursor += height;
        }
        finishPage(page);
    }

    void drawRow(const PDFRow& row, double cursor) {
        const double top = 786 - cursor - 1;
        gray(0.55);
        text(formatted(row.timestamp, "%H:%M:%S"), 8, false, 52, top, 52, false, "Noto Sans Mono");
        const double width = std::min(double(row.appName.size()) * 6.2 + 10, 130.0);
        drawPill(cursor, width);
        accent();
        text(row.appName.toStdString(), 7.5, false, 113, top, width - 6);
        const double x = 108 + width + 8;
        gray(0.2);
        text(row.title.toStdString(), 9, false, x, top, 499 - (x - 48) - 4);
        if (row.body.isEmpty())
            return;
        gray(0.55);
        text(row.body.toStdString(), 8.5, false, x, 786 - (cursor + 13) - 1, 499 - (x - 48) - 4);
    }

    void drawPill(double cursor, double width) {
        const double y = pageHeight - (786 - (cursor + 11)) - 12;
        accent(0.12);
        cairo_save(cairo_);
        cairo_translate(cairo_, 108 + width / 2, y + 6);
        cairo_scale(cairo_, width / 2, 6);
        cairo_arc(cairo_, 0, 0, 1, 0, 6.283185307179586);
        cairo_restore(cairo_);
        cairo_fill(cairo_);
        cairo_rectangle(cairo_, 108, y, width, 12);
        cairo_new_sub_path(cairo_);
        constexpr double quarter = 1.5707963267948966;
        cairo_arc(cairo_, 108 + width - 4, y + 4, 4, -quarter, 0);
        cairo_arc(cairo_, 108 + width - 4, y + 8, 4, 0, quarter);
        cairo_arc(cairo_, 112, y + 8, 4, quarter, 2 * quarter);
        cairo_arc(cairo_, 112, y + 4, 4, 2 * quarter, 3 * quarter);
        cairo_close_path(cairo_);
        cairo_fill(cairo_);
    }

    QByteArray bytes_;
    cairo_surface_t* surface_ = nullptr;
    cairo_t* cairo_ = nullptr;
};

} // namespace

QByteArray cairoReport(const std::vector<PDFRow>& rows) {
    return Report().made(rows);
}

} // namespace tessarine::bench
