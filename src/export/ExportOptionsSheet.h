#pragma once

#include "export/ExportFormat.h"
#include "export/ExportManager.h"
#include "platform/FileViewer.h"
#include "platform/Scheduler.h"
#include "shared/AliveGuard.h"
#include "shared/CapturedNotification.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <functional>
#include <memory>
#include <optional>

namespace tessarine {

class PreferencesStore;

// What a card shows of a format.
struct ExportFormatCard {
    Q_GADGET
    QML_VALUE_TYPE(exportFormatCard)
    Q_PROPERTY(QString name MEMBER name CONSTANT)
    Q_PROPERTY(QString symbol MEMBER symbol CONSTANT)
    Q_PROPERTY(QString descriptionKey MEMBER descriptionKey CONSTANT)

public:
    QString name;
    QString symbol;
    QString descriptionKey;
};

// The state behind the sheet through which the user exports: the choices, and how far an export has
// come. It exports the list that it is given, whatever is captured meanwhile. Gone while an export
// runs, it leaves the file to be written and nothing else to happen. Main thread.
class ExportOptionsSheet : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The window that exports brings it")
    Q_PROPERTY(int count READ count CONSTANT)
    Q_PROPERTY(QList<tessarine::ExportFormatCard> cards READ cards CONSTANT)
    Q_PROPERTY(tessarine::ExportFormatCard card READ card NOTIFY changed)
    Q_PROPERTY(int selectedCard READ selectedCard WRITE selectCard NOTIFY changed)
    Q_PROPERTY(bool offersPrivateContent READ offersPrivateContent NOTIFY changed)
    Q_PROPERTY(bool includePrivateContent READ includePrivateContent WRITE setIncludePrivateContent
                   NOTIFY changed)
    Q_PROPERTY(bool showPrivacyWarning READ showPrivacyWarning NOTIFY changed)
    Q_PROPERTY(bool isExporting READ isExporting NOTIFY changed)
    Q_PROPERTY(bool canExport READ canExport NOTIFY changed)
    Q_PROPERTY(QString exportError READ exportErrorText NOTIFY changed)
    Q_PROPERTY(bool exportDone READ exportDone NOTIFY changed)

public:
    struct Services {
        const ExportManager& exports;
        const PreferencesStore& preferences;
        Scheduler& scheduler;
        FileViewer& fileViewer;
    };

    // The callback closes the sheet, and may destroy it.
    ExportOptionsSheet(NotificationList notifications, std::function<void()> onDismiss,
                       const Services& services);

    ExportFormat selectedFormat() const { return selectedFormat_; }
    bool includePrivateContent() const { return includePrivateContent_; }
    bool showPrivacyWarning() const { return showPrivacyWarning_; }
    bool isExporting() const { return isExporting_; }
    const std::optional<QString>& exportError() const { return exportError_; }
    bool exportDone() const { return exportDone_; }

    int count() const { return int(notifications_.size()); }

    // Whether the user may choose to include private content: only where everything is private, or
    // applications that were made private one by one would be laid open with the rest.
    bool offersPrivateContent() const;

    bool canExport() const { return !isExporting_ && !notifications_.empty(); }

    void setSelectedFormat(ExportFormat format);

    // The switch. Turning it on asks the user to confirm.
    void setIncludePrivateContent(bool include);

    // The two answers to that question.
    Q_INVOKABLE void confirmPrivateContent();
    Q_INVOKABLE void keepHidden();

    // Asks for a path, writes the file on a worker, and at the end shows it to the user and closes
    // the sheet some time later, unless another export was started meanwhile. A failure leaves the
    // sheet open with the failure's text. Does nothing while the user is being asked for a path.
    void runExport();

    // The same for a view: it begins when the handler that calls this has returned. While the user
    // is being asked events go on, and the sheet with its handlers may go.
    Q_INVOKABLE void requestExport();

    Q_INVOKABLE void cancel();

    // The formats as the view shows them, the chosen one, and its place among them.
    static QList<ExportFormatCard> cards();
    ExportFormatCard card() const { return cards().at(selectedCard()); }
    int selectedCard() const { return int(selectedFormat_); }
    void selectCard(int index);

    // Empty when there was none.
    QString exportErrorText() const { return exportError_.value_or(QString()); }

Q_SIGNALS:
    void changed();

private:
    struct Job {
        const ExportManager& exports;
        NotificationList notifications;
        bool includePrivate;
        ExportFormat format;
        QString path;

        ExportResult run() const;
    };

    void onPreferencesChanged();
    void dispatch(const QString& path);
    std::optional<QString> askForPath();
    void finish(const ExportResult& result);
    void dismissLater();
    void dismiss();

    Services services_;
    NotificationList notifications_;
    std::function<void()> onDismiss_;
    ExportFormat selectedFormat_ = ExportFormat::csv;
    bool includePrivateContent_ = false;
    bool showPrivacyWarning_ = false;
    bool isExporting_ = false;
    std::optional<QString> exportError_;
    bool exportDone_ = false;
    bool asksForPath_ = false;
    int dismissal_ = 0; // the number of the last one; only that one may close the sheet
    AliveGuard alive_;
};

} // namespace tessarine
