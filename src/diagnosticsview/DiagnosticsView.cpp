#include "diagnosticsview/DiagnosticsView.h"

#include "diagnostics/DiagnosticsStore.h"

namespace tessarine {

DiagnosticsView::DiagnosticsView(const Services& services, QObject* parent)
    : QObject(parent)
    , store_(services.store)
    , log_(services.store)
    , database_(services) {
    connect(&store_, &DiagnosticsStore::statusChanged, this, &DiagnosticsView::statusChanged);
}

QString DiagnosticsView::captured() const {
    return QString::number(store_.capturedTotal()) + QStringLiteral(" captured");
}

QString DiagnosticsView::axStatus() const {
    return store_.axStatus();
}

QString DiagnosticsView::dbStatus() const {
    return store_.dbStatus();
}

QString DiagnosticsView::records() const {
    return QStringLiteral("%1 total · cursor %2")
        .arg(store_.dbRecordCount())
        .arg(store_.lastSeenRecId());
}

QString DiagnosticsView::nextPoll() const {
    return store_.isPolling() ? QString::number(qint64(store_.nextPollIn())) + u's'
                              : QStringLiteral("idle");
}

double DiagnosticsView::pollFraction() const {
    return store_.isPolling() ? 1.0 - store_.nextPollIn() / DiagnosticsStore::pollInterval : 1.0;
}

} // namespace tessarine
