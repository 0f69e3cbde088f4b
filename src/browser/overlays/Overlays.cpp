#include "browser/overlays/Overlays.h"

#include "browser/list/BrowserList.h"
#include "platform/Scheduler.h"

#include <utility>

namespace tessarine {

namespace {

constexpr double bannerSeconds = 4;

} // namespace

Overlays::Overlays(const BrowserList& list, Scheduler& scheduler, MakeExportSheet makeExportSheet)
    : list_(list)
    , scheduler_(scheduler)
    , makeExportSheet_(std::move(makeExportSheet)) {}

void Overlays::showBanner(const InlineBanner& banner) {
    inlineBanner_ = banner;
    Q_EMIT inlineBannerChanged();
    const int task = ++bannerTask_;
    scheduler_.onMainAfter(bannerSeconds, [self = QPointer<Overlays>(this), task] {
        if (self && self->bannerTask_ == task)
            self->dismissBanner();
    });
}

void Overlays::dismissBanner() {
    if (std::exchange(inlineBanner_, std::nullopt))
        Q_EMIT inlineBannerChanged();
}

// A sheet that is closed may be in the middle of telling so.
void Overlays::setShowExportSheet(bool shown) {
    if (shown == showExportSheet_)
        return;
    if (shown)
        makeExportSheet();
    showExportSheet_ = shown;
    Q_EMIT showExportSheetChanged();
    if (!shown && exportSheet_)
        exportSheet_->deleteLater();
}

void Overlays::makeExportSheet() {
    const auto onDismiss = [self = QPointer<Overlays>(this)] {
        if (self)
            self->setShowExportSheet(false);
    };
    exportSheet_ = makeExportSheet_(list_.notifications(), onDismiss).release();
    exportSheet_->setParent(this);
    Q_EMIT exportSheetMade();
}

} // namespace tessarine
