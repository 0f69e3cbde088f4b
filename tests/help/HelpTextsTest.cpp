#include "help/HelpFixture.h"
#include "support/EventLoop.h"
#include "support/WindowPicture.h"

#include <QTest>

namespace tessarine::testing {
namespace {

using namespace Qt::StringLiterals;

// What stands in the tables, whatever the language is.
struct LiteralTexts {
    HelpSection section;
    QStringList texts;
};

class LiteralTextsTest : public HelpFixture, public ::testing::WithParamInterface<LiteralTexts> {};

TEST_P(LiteralTextsTest, StandInTheirSectionOneAfterTheOther) {
    open();
    view().setSelectedSection(GetParam().section);
    draw();
    const QStringList shown = texts();
    qsizetype place = 0;
    for (const QString& text : GetParam().texts) {
        const qsizetype found = shown.indexOf(text, place);
        EXPECT_GE(found, 0) << text.toStdString();
        place = std::max(place, found);
    }
}

const LiteralTexts literalTexts[] = {
    {HelpSection::howItWorks,
     {u"Banner displayed on screen"_qs, u"✅ Captured immediately"_qs, u"✅ Also written"_qs,
      u"Silent notification (no banner)"_qs, u"❌ No banner to capture"_qs,
      u"✅ Captured within 30s"_qs, u"Focus mode suppressed banner"_qs, u"❌ No banner shown"_qs,
      u"✅ Captured within 30s"_qs, u"App not running when notif arrived"_qs,
      u"❌ No banner shown"_qs, u"✅ Recovered on startup (~30)"_qs, u"After system sleep / wake"_qs,
      u"Reconnects in 2s"_qs, u"✅ Polls on wake"_qs}},
    {HelpSection::theHoard,
     {u"App opens normally"_qs, u"Standard app launch"_qs, u"\"Deep link opened\" banner"_qs,
      u"App supported a URL scheme — opened to the relevant screen"_qs,
      u"\"App not installed\" banner"_qs,
      u"Notification came via iPhone Mirroring; app is not on this Mac"_qs}},
    {HelpSection::searchFilter,
     {u"Most recent notifications first (default)"_qs, u"Oldest notifications first"_qs,
      u"Alphabetical by app name"_qs, u"Flat list, no grouping (default)"_qs,
      u"Grouped by application, each group collapsible"_qs,
      u"Grouped by calendar day (newest first), each group collapsible"_qs, u"Full previous day"_qs,
      u"Rolling 7-day window"_qs, u"Rolling 30-day window"_qs, u"1st of current month to now"_qs,
      u"Full previous calendar month"_qs, u"1st January to now"_qs}},
    {HelpSection::preferences,
     {u"Forever (recommended)"_qs,
      u"All notifications kept indefinitely. Hoard has no size limit."_qs,
      u"1 year / 6 months / 90 / 60 / 30 days"_qs,
      u"Notifications older than the period are deleted at startup."_qs, u"14 days"_qs,
      u"Short retention — high risk of losing data. ⚠️"_qs, u"7 days"_qs,
      u"Very short retention. ⚠️"_qs}},
    {HelpSection::diagnostics,
     {u"Current state: Active (pid XXXX), Inactive (sleep), Restarting after wake…"_qs,
      u"Watcher active (WAL) or Polling every 30s"_qs,
      u"Total records in usernoted DB; last processed cursor (rec_id)"_qs,
      u"Countdown ring (seconds) until next 30-second usernoted DB poll"_qs}},
    {HelpSection::macosSettings,
     {u"Alert style = None (silent)"_qs,
      u"Captured via usernoted DB poller within 30s (no banner)"_qs, u"Alert style = Banners"_qs,
      u"✅ Captured immediately by AXObserver"_qs, u"Alert style = Alerts"_qs,
      u"✅ Captured; user must dismiss manually"_qs, u"Open System Settings"_qs,
      u"Go to Privacy & Security → Accessibility"_qs, u"Find Tessarine and enable the toggle"_qs,
      u"If not listed, click + and add it from Applications"_qs, u"Full Disk Access (Optional)"_qs,
      u"Tessarine captures all new notifications using the Accessibility API — Full Disk Access "
      u"is not required for normal operation."_qs,
      u"With Full Disk Access enabled"_qs,
      u"The app can import past notifications already stored by macOS, and improves reliability "
      u"in some edge cases (e.g. when the app was not running when a notification arrived)."_qs,
      u"Without Full Disk Access"_qs,
      u"All new notifications are captured normally. Some older notifications that arrived before "
      u"the app was running may not be available."_qs,
      u"You can enable or disable Full Disk Access at any time:"_qs,
      u"System Settings → Privacy & Security → Full Disk Access → toggle Tessarine."_qs}},
    {HelpSection::iphone,
     {u"Allow Notifications From iPhone = OFF"_qs, u"iPhone notifications not mirrored to Mac"_qs,
      u"Focus mode active on iPhone"_qs,
      u"Notifications may be delayed; still captured via usernoted DB"_qs, u"iPhone powered off"_qs,
      u"No mirroring — notifications not forwarded"_qs}},
};

INSTANTIATE_TEST_SUITE_P(Sections, LiteralTextsTest, ::testing::ValuesIn(literalTexts),
                         [](const auto& info) {
                             return rawValue(info.param.section).toStdString();
                         });

} // namespace
} // namespace tessarine::testing
