#include "help/HelpView.h"

#include "support/ManualScheduler.h"
#include "support/Printers.h"

#include <QCoreApplication>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;

class HelpViewTest : public ::testing::Test {
protected:
    QStringList shown() const {
        QStringList names;
        for (const HelpSectionEntry& entry : view_.shownSections())
            names << entry.rawValue;
        return names;
    }

    testing::ManualScheduler scheduler_;
    int noticesShown_ = 0;
    HelpView view_{{scheduler_, u"Text"_qs, [this] { ++noticesShown_; }}};
};

struct SectionCase {
    const char* rawValue;
    const char* icon;
    const char* title;
};

class HelpSectionTest : public ::testing::TestWithParam<std::pair<int, SectionCase>> {};

TEST_P(HelpSectionTest, HasItsPlaceItsNameItsSymbolAndItsTitle) {
    const auto [place, expected] = GetParam();
    const HelpSectionEntry entry = entryOf(allHelpSections.at(std::size_t(place)));
    EXPECT_EQ(entry.rawValue, QLatin1StringView(expected.rawValue));
    EXPECT_EQ(entry.icon, QLatin1StringView(expected.icon));
    EXPECT_EQ(entry.title, QLatin1StringView(expected.title));
}

// The titles are those that Linux reads.
INSTANTIATE_TEST_SUITE_P(
    Sections, HelpSectionTest,
    ::testing::Values(
        std::pair{0, SectionCase{"howItWorks", "bell.and.waves.left.and.right", "How It Works"}},
        std::pair{1, SectionCase{"theHoard", "tray.full", "The Hoard"}},
        std::pair{2, SectionCase{"searchFilter", "magnifyingglass", "Search & Filter"}},
        std::pair{3, SectionCase{"selectDelete", "checkmark.circle", "Select & Delete"}},
        std::pair{4, SectionCase{"exporting", "square.and.arrow.up", "Exporting"}},
        std::pair{5, SectionCase{"preferences", "gearshape", "Preferences"}},
        std::pair{6, SectionCase{"privacy", "lock.shield", "Privacy"}},
        std::pair{7, SectionCase{"menuBar", "menubar.rectangle", "The Bell"}},
        std::pair{8,
                  SectionCase{"diagnostics", "antenna.radiowaves.left.and.right", "Diagnostics"}},
        std::pair{9, SectionCase{"iphone", "iphone.and.arrow.forward", "Phones"}},
        std::pair{10, SectionCase{"macosSettings", "switch.2", "System Settings"}},
        std::pair{11, SectionCase{"tips", "lightbulb", "Tips"}},
        std::pair{12, SectionCase{"limitations", "exclamationmark.triangle", "Limitations"}},
        std::pair{13, SectionCase{"about", "info.circle", "About"}}),
    [](const auto& info) { return std::string(info.param.second.rawValue); });

TEST_F(HelpViewTest, HasFourteenSectionsAndBeginsWithTheFirst) {
    EXPECT_EQ(view_.sections().size(), 14);
    EXPECT_EQ(view_.selectedSection(), HelpSection::howItWorks);
    EXPECT_EQ(shown(), QStringList({u"howItWorks"_qs}));
}

TEST_F(HelpViewTest, ShowsTheSelectedSectionAlone) {
    view_.setSelectedSection(HelpSection::tips);
    EXPECT_EQ(view_.selectedIndex(), 11);
    EXPECT_EQ(shown(), QStringList({u"tips"_qs}));
}

TEST_F(HelpViewTest, StaysWhereItIsAtThePlaceOfNoSection) {
    view_.setSelectedIndex(3);
    view_.setSelectedIndex(-1);
    view_.setSelectedIndex(14);
    EXPECT_EQ(view_.selectedIndex(), 3);
}

TEST_F(HelpViewTest, ShowsAllSectionsWhileSomethingIsLookedFor) {
    view_.setSearchText(u"c"_qs);
    EXPECT_EQ(shown().size(), 14);
    view_.setSearchText(u" "_qs);
    EXPECT_EQ(shown().size(), 1);
}

TEST_F(HelpViewTest, MakesNoPageAgainForAnotherLetterOfTheSearch) {
    view_.setSearchText(u"c"_qs);
    QSignalSpy spy(&view_, &HelpView::shownSectionsChanged);
    view_.setSearchText(u"cs"_qs);
    EXPECT_EQ(spy.count(), 0);
}

TEST_F(HelpViewTest, ChoosingASectionEndsTheSearchEvenTheOneThatWasChosen) {
    view_.setSearchText(u"csv"_qs);
    view_.setSelectedSection(HelpSection::howItWorks);
    EXPECT_EQ(view_.searchText(), QString());
    EXPECT_EQ(shown(), QStringList({u"howItWorks"_qs}));
}

TEST_F(HelpViewTest, TellsWhetherThereWasASearchToEnd) {
    EXPECT_FALSE(view_.endSearch());
    view_.setSearchText(u"csv"_qs);
    EXPECT_TRUE(view_.endSearch());
    EXPECT_EQ(view_.searchText(), QString());
}

TEST_F(HelpViewTest, KnowsTheVersionThatRuns) {
    QCoreApplication::setApplicationVersion(u"4.5.6"_qs);
    EXPECT_EQ(view_.version(), u"4.5.6"_qs);
}

TEST_F(HelpViewTest, LeadsToThePrivacyNoticeWhereThereIsOne) {
    EXPECT_TRUE(view_.canShowPrivacyNotice());
    view_.showPrivacyNotice();
    EXPECT_EQ(noticesShown_, 1);
    const HelpView without({scheduler_, {}, {}});
    EXPECT_FALSE(without.canShowPrivacyNotice());
    without.showPrivacyNotice();
}

} // namespace
} // namespace tessarine
