#include "browser/list/GroupSlide.h"

#include <QEasingCurve>
#include <QQmlListReference>

#include <limits>
#include <utility>

namespace tessarine {

namespace {

double bottomOf(const QQuickItem& item) {
    return item.y() + item.height();
}

} // namespace

GroupSlide::GroupSlide() {
    motion_.setEasingCurve(QEasingCurve::InOutQuad);
    connect(&motion_, &QVariantAnimation::valueChanged, this, &GroupSlide::moveLines);
    connect(&motion_, &QVariantAnimation::finished, this, [this] {
        if (key_.isEmpty())
            end();
    });
}

void GroupSlide::toggle(const QString& key) {
    end();
    const int header = lineOfHeader(key);
    const bool closes = !list_->lines()->header(header).isCollapsed;
    if (!closes) {
        list_->toggleGroup(key);
        return;
    }
    const int rows = rowsInSightBelow(header);
    list_->toggleGroup(key, rows); // also takes away what was left of another group
    if (rows > 0)
        slideUp(lineOfHeader(key), rows);
}

void GroupSlide::layOut() {
    const double before = top();
    QMetaObject::invokeMethod(view_, "forceLayout");
    if (key_.isEmpty() || list_->isFading(key_))
        return;
    const double after = top();
    end();
    if (before != after)
        slideBack(before - after);
}

int GroupSlide::lineOfHeader(const QString& key) const {
    const NotificationListModel& lines = *list_->lines();
    int line = lines.headerBelow(-1);
    while (line >= 0 && lines.header(line).key != key)
        line = lines.headerBelow(line);
    return line;
}

int GroupSlide::rowsInSightBelow(int header) const {
    const int behind = list_->lines()->headerBelow(header);
    const int end = behind < 0 ? list_->lines()->rowCount() : behind;
    const double edge = view_->property("contentY").toDouble() + view_->height();
    int line = header + 1;
    for (; line < end; ++line) {
        const QQuickItem* const row = itemAt(line);
        if (!row || row->y() >= edge)
            break;
    }
    return line - header - 1;
}

// What comes into sight from below has to be made before.
void GroupSlide::slideUp(int header, int rows) {
    header_ = itemAt(header);
    last_ = itemAt(header + rows);
    if (!header_ || !last_)
        return;
    key_ = list_->lines()->header(header).key;
    view_->setProperty("displayMarginEnd", int(view_->height()));
    QMetaObject::invokeMethod(view_, "forceLayout");
    start(0, bottomOf(*header_) - bottomOf(*last_));
}

void GroupSlide::slideBack(double distance) {
    start(distance, 0);
}

void GroupSlide::start(double from, double to) {
    motion_.setStartValue(from);
    motion_.setEndValue(to);
    motion_.start();
    moveLines();
}

void GroupSlide::end() {
    key_.clear();
    motion_.stop();
    releaseLines();
    translation_->setProperty("y", 0.0);
    view_->setProperty("displayMarginEnd", 0);
}

double GroupSlide::top() const {
    return header_ ? header_->y() - view_->property("contentY").toDouble() : 0;
}

// What begins there or below moves: all lines when no group closes.
double GroupSlide::upperEdge() const {
    if (key_.isEmpty())
        return std::numeric_limits<double>::lowest();
    return last_ ? bottomOf(*last_) : std::numeric_limits<double>::max();
}

// Lines that have come into being since the last frame too.
void GroupSlide::moveLines() {
    translation_->setProperty("y", motion_.currentValue());
    const double edge = upperEdge();
    for (QQuickItem* item : contentItem()->childItems()) {
        if (item->y() < edge || moved_.contains(item))
            continue;
        QQmlListReference(item, "transform").append(translation_);
        moved_.push_back(item);
    }
}

void GroupSlide::releaseLines() {
    for (const QPointer<QQuickItem>& item : std::exchange(moved_, {})) {
        if (item)
            QQmlListReference(item.data(), "transform").clear();
    }
}

QQuickItem* GroupSlide::contentItem() const {
    return view_->property("contentItem").value<QQuickItem*>();
}

QQuickItem* GroupSlide::itemAt(int line) const {
    QQuickItem* item = nullptr;
    QMetaObject::invokeMethod(view_, "itemAtIndex", Q_RETURN_ARG(QQuickItem*, item),
                              Q_ARG(int, line));
    return item;
}

} // namespace tessarine
