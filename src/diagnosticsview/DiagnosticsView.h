#pragma once

#include "diagnosticsview/DatabaseSectionView.h"
#include "diagnosticsview/DiagnosticsLog.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace tessarine {

// The state of the diagnostics window: the status board as texts, the log, the tools for the hoard.
// Main thread.
class DiagnosticsView : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The diagnostics window brings it")
    Q_PROPERTY(tessarine::DiagnosticsLog* log READ log CONSTANT)
    Q_PROPERTY(tessarine::DatabaseSectionView* database READ database CONSTANT)
    Q_PROPERTY(QString captured READ captured NOTIFY statusChanged)
    Q_PROPERTY(QString axStatus READ axStatus NOTIFY statusChanged)
    Q_PROPERTY(QString dbStatus READ dbStatus NOTIFY statusChanged)
    Q_PROPERTY(QString records READ records NOTIFY statusChanged)
    Q_PROPERTY(QString nextPoll READ nextPoll NOTIFY statusChanged)
    Q_PROPERTY(double pollFraction READ pollFraction NOTIFY statusChanged)

public:
    using Services = DatabaseSectionView::Services;

    explicit DiagnosticsView(const Services& services, QObject* parent = nullptr);

    DiagnosticsLog* log() { return &log_; }
    DatabaseSectionView* database() { return &database_; }

    QString captured() const;    // "12 captured"
    QString axStatus() const;    // of the banner layer
    QString dbStatus() const;    // of the usernoted layer
    QString records() const;     // "0 total · cursor 17"
    QString nextPoll() const;    // "17s", or "idle"
    double pollFraction() const; // how much of the time to the next poll is over; 1 when idle

Q_SIGNALS:
    void statusChanged();

private:
    const DiagnosticsStore& store_;
    DiagnosticsLog log_;
    DatabaseSectionView database_;
};

} // namespace tessarine
