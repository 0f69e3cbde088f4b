#pragma once

#include "browser/overlays/InlineBanner.h"
#include "export/ExportOptionsSheet.h"

#include <QObject>
#include <QPointer>
#include <QtQml/qqmlregistration.h>

#include <functional>
#include <memory>
#include <optional>

namespace tessarine {

class BrowserList;
class Scheduler;

// What comes over the list for a while and is not about a row: the inline banner, which goes by
// itself, and the sheet of an export. Main thread.
class Overlays : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("ContentView brings it")
    Q_PROPERTY(bool hasInlineBanner READ hasInlineBanner NOTIFY inlineBannerChanged)
    Q_PROPERTY(tessarine::InlineBanner inlineBanner READ inlineBanner NOTIFY inlineBannerChanged)
    Q_PROPERTY(bool showExportSheet READ showExportSheet WRITE setShowExportSheet NOTIFY
                   showExportSheetChanged)
    Q_PROPERTY(tessarine::ExportOptionsSheet* exportSheet READ exportSheet NOTIFY exportSheetMade)

public:
    // A sheet over a list; the callback closes it.
    using MakeExportSheet = std::function<std::unique_ptr<ExportOptionsSheet>(
        NotificationList, std::function<void()> onDismiss)>;

    // The references outlive the overlays.
    Overlays(const BrowserList& list, Scheduler& scheduler, MakeExportSheet makeExportSheet);

    void showBanner(const InlineBanner& banner); // for four seconds, instead of the one before
    Q_INVOKABLE void dismissBanner();
    bool hasInlineBanner() const { return inlineBanner_.has_value(); }
    InlineBanner inlineBanner() const { return inlineBanner_.value_or(InlineBanner()); }

    // The sheet gets the loaded list as it stands, whatever the filters show.
    bool showExportSheet() const { return showExportSheet_; }
    void setShowExportSheet(bool shown);
    ExportOptionsSheet* exportSheet() const { return exportSheet_; } // null while there is none

Q_SIGNALS:
    void inlineBannerChanged();
    void showExportSheetChanged();
    void exportSheetMade();

private:
    void makeExportSheet();

    const BrowserList& list_;
    Scheduler& scheduler_;
    MakeExportSheet makeExportSheet_;
    std::optional<InlineBanner> inlineBanner_;
    int bannerTask_ = 0; // the number of the last one; only that one may clear the banner
    bool showExportSheet_ = false;
    QPointer<ExportOptionsSheet> exportSheet_;
};

} // namespace tessarine
