#pragma once

#include "settings/HoardBackup.h"
#include "settings/PreferenceChoices.h"
#include "shared/AliveGuard.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

namespace tessarine {

class HoardStore;
class PreferencesStore;
class SavePanel;
class Scheduler;

// The preferences' tab for how long notifications are kept, and for the hoard's file. Main thread.
class StorageSettings : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("PreferencesView brings it")
    Q_PROPERTY(QList<QString> retentionTexts READ retentionTexts CONSTANT)
    Q_PROPERTY(int retentionIndex READ retentionIndex WRITE chooseRetention NOTIFY changed)
    Q_PROPERTY(QString retentionText READ retentionText NOTIFY changed)
    Q_PROPERTY(tessarine::PreferenceNote retentionNote READ retentionNote NOTIFY changed)
    Q_PROPERTY(QString hoardSize READ hoardSize NOTIFY hoardSizeChanged)
    Q_PROPERTY(tessarine::HoardBackup* backup READ backup CONSTANT)

public:
    // The references outlive this.
    StorageSettings(PreferencesStore& preferences, HoardStore& hoard, Scheduler& scheduler,
                    SavePanel& savePanel);

    // The window comes to be shown, and goes.
    void appear();
    void disappear();

    // The choice stores the value; rows that are too old go at the next launch.
    static QStringList retentionTexts() { return tessarine::retentionTexts(); }
    int retentionIndex() const; // -1 for a value that is not offered
    void chooseRetention(int index);
    QString retentionText() const;
    PreferenceNote retentionNote() const;

    // The main file's, in words, as of the last appearance; empty before it is known. The
    // write-ahead log isn't counted.
    const QString& hoardSize() const { return hoardSize_; }

    HoardBackup* backup() { return &backup_; }

Q_SIGNALS:
    void changed();
    void hoardSizeChanged();

private:
    void refreshSize();

    PreferencesStore& preferences_;
    HoardStore& hoard_;
    Scheduler& scheduler_;
    HoardBackup backup_;
    QString hoardSize_;
    AliveGuard alive_;
};

} // namespace tessarine
