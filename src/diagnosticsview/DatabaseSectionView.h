#pragma once

#include "export/ExportOptionsSheet.h"
#include "platform/Platform.h"
#include "platform/SavePanel.h"
#include "shared/AliveGuard.h"
#include "shared/CapturedNotification.h"
#include "store/HoardStats.h"

#include <QColor>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <functional>
#include <memory>
#include <optional>

namespace tessarine {

class DiagnosticsStore;
class HoardStore;
struct DiagnosticsSnapshot;

// What a cell shows of the hoard.
struct DBStatCellContent {
    Q_GADGET
    QML_VALUE_TYPE(dbStatCellContent)
    Q_PROPERTY(QString key MEMBER key CONSTANT)
    Q_PROPERTY(QString symbol MEMBER symbol CONSTANT)
    Q_PROPERTY(QColor colour MEMBER colour CONSTANT)
    Q_PROPERTY(QString value MEMBER value CONSTANT)

public:
    QString key; // of its title among the texts
    QString symbol;
    QColor colour;
    QString value;
};

// The tools for the hoard in the diagnostics window. Each action sets its flag, does its work on
// workers, tells in the log what came of it and clears the flag; while the flag is set, another
// press does nothing. Work that has begun ends with its line in the log even where the window goes
// meanwhile. Main thread.
class DatabaseSectionView : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("DiagnosticsView brings it")
    Q_PROPERTY(QList<tessarine::DBStatCellContent> cells READ cells NOTIFY statsChanged)
    Q_PROPERTY(bool isCheckingIntegrity READ isCheckingIntegrity NOTIFY changed)
    Q_PROPERTY(bool isCreatingBackup READ isCreatingBackup NOTIFY changed)
    Q_PROPERTY(bool isCopyingReport READ isCopyingReport NOTIFY changed)
    Q_PROPERTY(bool isExportingReport READ isExportingReport NOTIFY changed)
    Q_PROPERTY(bool showDataExportSheet READ showDataExportSheet NOTIFY changed)
    Q_PROPERTY(tessarine::ExportOptionsSheet* exportSheet READ exportSheet NOTIFY changed)
    Q_PROPERTY(bool includeNotifContent READ includeNotifContent WRITE setIncludeNotifContent NOTIFY
                   changed)

public:
    // A sheet over a list; the callback closes it.
    using MakeExportSheet = std::function<std::unique_ptr<ExportOptionsSheet>(
        NotificationList, std::function<void()> onDismiss)>;

    // The references outlive the view, and the work that it has begun.
    struct Services {
        DiagnosticsStore& store;
        HoardStore& hoard;
        const Platform& platform;
        QString usernotedDbPath;
        SavePanel& savePanel;
        std::function<void(const QString&)> setPasteboard; // replaces its content by a plain text
        MakeExportSheet makeExportSheet;
    };

    explicit DatabaseSectionView(Services services, QObject* parent = nullptr);

    QList<DBStatCellContent> cells() const;
    bool isCheckingIntegrity() const { return isCheckingIntegrity_; }
    bool isCreatingBackup() const { return isCreatingBackup_; }
    bool isCopyingReport() const { return isCopyingReport_; }
    bool isExportingReport() const { return isExportingReport_; }
    bool showDataExportSheet() const { return showDataExportSheet_; }
    ExportOptionsSheet* exportSheet() const { return exportSheet_; } // null while there is none
    bool includeNotifContent() const { return includeNotifContent_; }
    void setIncludeNotifContent(bool include);

    // Counts the hoard anew.
    Q_INVOKABLE void refresh();

    Q_INVOKABLE void verifyIntegrity();

    // Moves the log into the main file, asks for a place, and copies the file there.
    Q_INVOKABLE void createBackup();

    // Puts the quick report on the pasteboard.
    Q_INVOKABLE void copyReport();

    // Opens the sheet of an export over the hoard's first 500 rows.
    Q_INVOKABLE void exportData();

    // Asks for a place, and writes the report for a file there, with content where that is chosen.
    Q_INVOKABLE void exportReport();

Q_SIGNALS:
    void changed();
    void exportSheetMade();
    void statsChanged();

private:
    void followStats();
    void set(bool& flag, bool value);
    template <typename Work, typename Then>
    void onWorker(QualityOfService quality, Work work, Then then);
    std::optional<QString> askForPath(const SavePanel::Request& request);
    void askForBackup();
    void copyTo(const QString& path);
    void copyReportOf(const HoardStats& stats);
    void askForReport();
    void writeReport(const QString& path, const DiagnosticsSnapshot& snapshot);
    void closeExportSheet();

    Services services_;
    HoardStats stats_; // as shown
    bool isCheckingIntegrity_ = false;
    bool isCreatingBackup_ = false;
    bool isCopyingReport_ = false;
    bool isExportingReport_ = false;
    bool showDataExportSheet_ = false;
    bool includeNotifContent_ = false;
    QPointer<ExportOptionsSheet> exportSheet_;
    AliveGuard alive_;
};

} // namespace tessarine
