#include "browser/list/PinnedHeader.h"

#include <algorithm>
#include <utility>

namespace tessarine {

void PinnedHeader::setList(BrowserList* list) {
    if (list_) {
        list_->lines()->disconnect(this);
        list_->disconnect(this);
    }
    list_ = list;
    if (!list_)
        return;
    connect(list, &BrowserList::listChanged, this, &PinnedHeader::update);
    connect(list->lines(), &QAbstractItemModel::dataChanged, this, &PinnedHeader::updateHeader);
}

void PinnedHeader::update() {
    if (!view_ || !list_)
        return;
    const NotificationListModel& lines = *list_->lines();
    const int line = topLine();
    line_ = lines.headerAbove(line);
    follow(item_, itemAt(line_));
    follow(nextItem_, itemAt(lines.headerBelow(line)));
    updateHeader();
    Q_EMIT changed();
}

void PinnedHeader::updateHeader() {
    const GroupHeader header = list_->lines()->header(line_);
    if (std::exchange(header_, header) != header)
        Q_EMIT headerChanged();
}

// An item may move although the view doesn't: lines above it come and go.
void PinnedHeader::follow(QPointer<QQuickItem>& followed, QQuickItem* item) {
    if (followed == item)
        return;
    if (followed)
        followed->disconnect(this);
    followed = item;
    if (item)
        connect(item, &QQuickItem::yChanged, this, &PinnedHeader::changed);
}

bool PinnedHeader::isPinned() const {
    return line_ >= 0 && (!item_ || item_->y() < contentY());
}

double PinnedHeader::top() const {
    return nextItem_ ? std::min(0.0, nextItem_->y() - contentY() - height_) : 0.0;
}

double PinnedHeader::contentY() const {
    return view_ ? view_->property("contentY").toDouble() : 0.0;
}

// The line at the upper edge; -1 above the first one. The room between two lines belongs to the
// lower one.
int PinnedHeader::topLine() const {
    const double edge = contentY() + 1;
    const int line = lineAt(edge);
    return line >= 0 ? line : lineAt(edge + view_->property("spacing").toDouble());
}

int PinnedHeader::lineAt(double y) const {
    int line = -1;
    QMetaObject::invokeMethod(view_, "indexAt", Q_RETURN_ARG(int, line),
                              Q_ARG(qreal, view_->width() / 2), Q_ARG(qreal, y));
    return line;
}

QQuickItem* PinnedHeader::itemAt(int line) const {
    QQuickItem* item = nullptr;
    QMetaObject::invokeMethod(view_, "itemAtIndex", Q_RETURN_ARG(QQuickItem*, item),
                              Q_ARG(int, line));
    return item;
}

} // namespace tessarine
