#include "browser/list/NotificationListModel.h"

#include "support/DateLocaleScope.h"
#include "support/Printers.h"
#include "support/TimeZoneScope.h"

#include <QAbstractItemModelTester>
#include <QMetaEnum>
#include <QSignalSpy>

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;
using Role = NotificationListModel::Role;

// A row as the hoard gives it: a reload has the same content under a fresh id.
CapturedNotification row(qint64 dbId, const QString& title = {}) {
    CapturedNotification result;
    result.dbId = dbId;
    result.appName = u"Mail"_qs;
    result.title = title;
    return result;
}

NotificationList rows(std::initializer_list<qint64> keys) {
    NotificationList list;
    for (const qint64 key : keys)
        list.push_back(row(key));
    return list;
}

// A view in small: it knows the model only by what the model tells, and copies rows when it is
// told of them.
class Mirror {
public:
    explicit Mirror(const NotificationListModel& model)
        : model_(model) {
        QObject::connect(&model, &QAbstractItemModel::rowsInserted, &model,
                         [this](const QModelIndex&, int first, int last) { insert(first, last); });
        QObject::connect(&model, &QAbstractItemModel::rowsRemoved, &model,
                         [this](const QModelIndex&, int first, int last) { remove(first, last); });
        QObject::connect(&model, &QAbstractItemModel::dataChanged, &model,
                         [this](const QModelIndex& first, const QModelIndex& last,
                                const QList<int>&) { change(first.row(), last.row()); });
        QObject::connect(&model, &QAbstractItemModel::modelReset, &model, [this] { ++resets; });
    }

    NotificationList rows;
    int resets = 0;
    int told = 0;

private:
    void insert(int first, int last) {
        ++told;
        for (int line = first; line <= last; ++line)
            rows.insert(rows.begin() + line, shownAt(line));
    }
    void remove(int first, int last) {
        ++told;
        rows.erase(rows.begin() + first, rows.begin() + last + 1);
    }
    void change(int first, int last) {
        ++told;
        for (int line = first; line <= last; ++line)
            rows[std::size_t(line)] = shownAt(line);
    }

    const CapturedNotification& shownAt(int line) const {
        return model_.entries()[std::size_t(line)].notification;
    }

    const NotificationListModel& model_;
};

class ModelTest : public ::testing::Test {
protected:
    QVariant at(int index, Role role) const { return model_.data(model_.index(index), int(role)); }

    void setRows(const NotificationList& list) { model_.setEntries(ungroupedEntries(list)); }

    QString private_ = u"nobody"_qs; // the bundle id whose rows are private
    NotificationListModel model_{[this](const QString& bundleId) { return bundleId == private_; }};
    QAbstractItemModelTester tester_{&model_,
                                     QAbstractItemModelTester::FailureReportingMode::Fatal};
    Mirror mirror_{model_};
    QSignalSpy inserted_{&model_, &QAbstractItemModel::rowsInserted};
    QSignalSpy removed_{&model_, &QAbstractItemModel::rowsRemoved};
    QSignalSpy changed_{&model_, &QAbstractItemModel::dataChanged};
};

TEST_F(ModelTest, RolesAreNamedAsTheEnumerationHasThem) {
    const QHash<int, QByteArray> names = model_.roleNames();
    EXPECT_EQ(names.value(int(Role::NotificationId)), QByteArray("notificationId"));
    EXPECT_EQ(names.value(int(Role::AppName)), QByteArray("appName"));
    EXPECT_EQ(names.value(int(Role::Title)), QByteArray("title"));
    EXPECT_EQ(names.value(int(Role::SpokenText)), QByteArray("spokenText"));
    EXPECT_EQ(names.size(), QMetaEnum::fromType<Role>().keyCount());
}

TEST_F(ModelTest, ARowHasItsTexts) {
    CapturedNotification notification = row(7, u"Hello"_qs);
    notification.body = u"World"_qs;
    setRows({notification});
    EXPECT_EQ(at(0, Role::NotificationId).toUuid(), notification.id);
    EXPECT_EQ(at(0, Role::AppName).toString(), u"Mail"_qs);
    EXPECT_EQ(at(0, Role::Title).toString(), u"Hello"_qs);
    EXPECT_EQ(at(0, Role::Body).toString(), u"World"_qs);
    EXPECT_EQ(at(0, Role::Kind).toString(), u"row"_qs);
    EXPECT_TRUE(at(0, Role::TimeText).toString().contains(u"2001"_qs) ||
                at(0, Role::TimeText).toString().contains(u"2000"_qs));
    EXPECT_TRUE(at(0, Role::SpokenText).toString().startsWith(u"Mail, Hello, World, "_qs));
    EXPECT_FALSE(at(1, Role::Title).isValid());
}

TEST_F(ModelTest, AHugeTextIsCutBetweenTwoCharacters) {
    const QString fits = u"x"_qs.repeated(2000);
    const QString pairs = u"x"_qs + u"😀"_qs.repeated(5000);
    setRows({row(1, fits), row(2, pairs)});
    EXPECT_EQ(at(0, Role::Title).toString(), fits);
    const QString cut = at(1, Role::Title).toString();
    EXPECT_EQ(cut, u"x"_qs + u"😀"_qs.repeated(999) + u"…"_qs);
}

TEST_F(ModelTest, AReloadTellsNothingButTheFreshIds) {
    setRows(rows({3, 2, 1}));
    inserted_.clear();
    setRows(rows({3, 2, 1}));
    EXPECT_EQ(inserted_.count(), 0);
    EXPECT_EQ(removed_.count(), 0);
    ASSERT_EQ(changed_.count(), 1);
    EXPECT_EQ(changed_[0][2].value<QList<int>>(),
              (QList<int>{int(Role::NotificationId), int(Role::IsSelected), int(Role::IsFocused),
                          int(Role::Header)}));
}

TEST_F(ModelTest, TheVerySameListTellsNothingAtAll) {
    const NotificationList list = rows({3, 2, 1});
    setRows(list);
    const int told = mirror_.told;
    setRows(list);
    EXPECT_EQ(mirror_.told, told);
}

TEST_F(ModelTest, ANewRowInFrontIsOneInsertion) {
    setRows(rows({3, 2, 1}));
    inserted_.clear();
    setRows(rows({4, 3, 2, 1}));
    ASSERT_EQ(inserted_.count(), 1);
    EXPECT_EQ(inserted_[0][1].toInt(), 0);
    EXPECT_EQ(inserted_[0][2].toInt(), 0);
    EXPECT_EQ(removed_.count(), 0);
}

TEST_F(ModelTest, AFullListDropsItsLastRowForANewFirstOne) {
    setRows(rows({3, 2, 1}));
    inserted_.clear();
    setRows(rows({4, 3, 2}));
    ASSERT_EQ(removed_.count(), 1);
    EXPECT_EQ(removed_[0][1].toInt(), 2);
    ASSERT_EQ(inserted_.count(), 1);
    EXPECT_EQ(inserted_[0][1].toInt(), 0);
}

TEST_F(ModelTest, APinnedRowThatMovesUpLeavesTheOthersAlone) {
    setRows(rows({4, 3, 2, 1}));
    inserted_.clear();
    NotificationList pinned = rows({2, 4, 3, 1});
    pinned[0].pinned = true;
    setRows(pinned);
    ASSERT_EQ(removed_.count(), 1);
    EXPECT_EQ(removed_[0][1].toInt(), 2);
    ASSERT_EQ(inserted_.count(), 1);
    EXPECT_EQ(inserted_[0][1].toInt(), 0);
}

TEST_F(ModelTest, AChangedRowIsToldAsAChange) {
    setRows(rows({3, 2, 1}));
    inserted_.clear();
    NotificationList list = rows({3, 2, 1});
    list[1].title = u"changed"_qs;
    setRows(list);
    EXPECT_EQ(inserted_.count(), 0);
    EXPECT_EQ(removed_.count(), 0);
    ASSERT_EQ(changed_.count(), 2); // the row, then the fresh ids
    EXPECT_EQ(changed_[0][0].toModelIndex().row(), 1);
    EXPECT_TRUE(changed_[0][2].value<QList<int>>().isEmpty());
}

// Marks

TEST_F(ModelTest, MarksFollowTheIdsInMemory) {
    const NotificationList list = rows({2, 1});
    setRows(list);
    changed_.clear();
    model_.setSelected({list[0].id});
    EXPECT_EQ(changed_.count(), 1);
    model_.setFocused(list[1].id);
    EXPECT_EQ(changed_.count(), 2);
    model_.setSelected({list[0].id}); // as they are already
    model_.setFocused(list[1].id);
    EXPECT_EQ(changed_.count(), 2);
    EXPECT_TRUE(at(0, Role::IsSelected).toBool());
    EXPECT_FALSE(at(0, Role::IsFocused).toBool());
    EXPECT_FALSE(at(1, Role::IsSelected).toBool());
    EXPECT_TRUE(at(1, Role::IsFocused).toBool());

    setRows(rows({2, 1})); // the same rows under fresh ids
    EXPECT_FALSE(at(0, Role::IsSelected).toBool());
    EXPECT_FALSE(at(1, Role::IsFocused).toBool());
}

TEST_F(ModelTest, AsksAnewWhatIsPrivateWhenItIsToldThatThisHasChanged) {
    NotificationList list = rows({2, 1});
    list[0].appBundleId = u"secret"_qs;
    setRows(list);
    EXPECT_FALSE(at(0, Role::IsPrivate).toBool());
    changed_.clear();
    private_ = u"secret"_qs;
    model_.privacyChanged();
    EXPECT_EQ(changed_.count(), 1);
    EXPECT_TRUE(at(0, Role::IsPrivate).toBool());
    EXPECT_FALSE(at(1, Role::IsPrivate).toBool());
}

// Groups

class GroupedModelTest : public ModelTest {
protected:
    // Zoom with the rows 1 and 2, mail with row 3.
    GroupedModelTest() {
        list_ = rows({1, 2, 3});
        list_[0].appName = list_[1].appName = u"Zoom"_qs;
        list_[0].appBundleId = u"us.zoom"_qs;
        list_[1].appBundleId = u"us.zoom.other"_qs;
        list_[2].appName = u"mail"_qs;
        group({});
    }

    void group(const QSet<QString>& collapsed) {
        model_.setEntries(groupedEntries(GroupMode::app, groupedByApp(list_), collapsed));
    }

    QStringList kinds() const {
        QStringList kinds;
        for (int line = 0; line < model_.rowCount(); ++line)
            kinds << at(line, Role::Kind).toString();
        return kinds;
    }

    // Whether a view was told that this line looks different by now.
    bool isTold(int line, Role role) const {
        return std::ranges::any_of(changed_, [&](const QList<QVariant>& change) {
            const auto roles = change[2].value<QList<int>>();
            return change[0].toModelIndex().row() <= line &&
                   change[1].toModelIndex().row() >= line &&
                   (roles.isEmpty() || roles.contains(int(role)));
        });
    }

    NotificationList list_;
};

TEST_F(GroupedModelTest, HeadersStandAboveTheirRows) {
    EXPECT_EQ(kinds(), QStringList({u"header"_qs, u"row"_qs, u"row"_qs, u"header"_qs, u"row"_qs}));
    const GroupHeader first = at(0, Role::Header).value<GroupHeader>();
    EXPECT_EQ(first.key, u"Zoom"_qs);
    EXPECT_EQ(first.title, u"Zoom"_qs);
    EXPECT_EQ(first.count, 2);
    EXPECT_EQ(first.bundleId, u"us.zoom"_qs); // of the first row
    EXPECT_TRUE(first.hasIcon);
    EXPECT_FALSE(first.isCollapsed);
    EXPECT_EQ(model_.header(3).key, u"mail"_qs);
}

TEST_F(GroupedModelTest, ACollapsedGroupIsItsHeaderAlone) {
    removed_.clear();
    group({u"Zoom"_qs});
    EXPECT_EQ(kinds(), QStringList({u"header"_qs, u"header"_qs, u"row"_qs}));
    EXPECT_TRUE(model_.header(0).isCollapsed);
    EXPECT_EQ(model_.header(0).count, 2);
    ASSERT_EQ(removed_.count(), 1);
    EXPECT_EQ(removed_[0][1].toInt(), 1);
    EXPECT_EQ(removed_[0][2].toInt(), 2);
}

TEST_F(GroupedModelTest, AHeaderCountsTheSelectedRowsOfItsGroupAlsoWhileItIsCollapsed) {
    model_.setSelected({list_[1].id, list_[2].id});
    EXPECT_EQ(model_.header(0).selectedCount, 1);
    group({u"Zoom"_qs});
    EXPECT_EQ(model_.header(0).selectedCount, 1);
}

TEST_F(GroupedModelTest, AHeaderIsToldOfOtherRowsOfTheSameNumberBehindTheSameFirstOne) {
    list_.push_back(row(4));
    list_.back().appName = u"Zoom"_qs;
    const NotificationList all = list_;
    list_ = {all[0], all[1], all[2]};
    group({u"Zoom"_qs});
    model_.setSelected({all[0].id, all[1].id});
    EXPECT_EQ(model_.header(0).selectedCount, 2);
    changed_.clear();

    list_ = {all[0], all[3], all[2]}; // another search
    group({u"Zoom"_qs});

    EXPECT_EQ(model_.header(0).selectedCount, 1);
    EXPECT_TRUE(isTold(0, Role::Header));
}

TEST_F(GroupedModelTest, TheVerySameGroupsTellNothingAtAll) {
    changed_.clear();
    group({});
    EXPECT_EQ(changed_.count(), 0);
}

TEST_F(GroupedModelTest, KnowsTheRowsOfAGroupAlsoWhileItIsCollapsed) {
    const QSet<QUuid> zoom{list_[0].id, list_[1].id};
    EXPECT_EQ(model_.idsOfGroup(u"Zoom"_qs), zoom);
    group({u"Zoom"_qs});
    EXPECT_EQ(model_.idsOfGroup(u"Zoom"_qs), zoom);
    EXPECT_TRUE(model_.idsOfGroup(u"zoom"_qs).isEmpty());
}

TEST_F(GroupedModelTest, KnowsTheHeadersAroundALine) {
    EXPECT_EQ(model_.headerAbove(0), 0);
    EXPECT_EQ(model_.headerAbove(2), 0);
    EXPECT_EQ(model_.headerAbove(4), 3);
    EXPECT_EQ(model_.headerAbove(5), -1);
    EXPECT_EQ(model_.headerAbove(-1), -1);
    EXPECT_EQ(model_.headerBelow(-1), 0);
    EXPECT_EQ(model_.headerBelow(0), 3);
    EXPECT_EQ(model_.headerBelow(3), -1);
    EXPECT_EQ(model_.header(1), GroupHeader());
    EXPECT_EQ(model_.header(-1), GroupHeader());
}

TEST_F(GroupedModelTest, ADaysGroupHasItsDateInTheTitleAndTheTimeInItsRows) {
    const testing::TimeZoneScope zone("UTC");
    const testing::DateLocaleScope german("de_DE.UTF-8");
    model_.setEntries(groupedEntries(GroupMode::date, groupedByDate(list_), {}));
    EXPECT_FALSE(model_.header(0).hasIcon);
    EXPECT_EQ(model_.header(0).title, u"Montag, 1. Januar 2001"_qs);
    EXPECT_EQ(at(1, Role::TimeText).toString(), u"00:00:00"_qs);
}

TEST(DayTitle, IsTheKeyItselfWhereThatIsNoDay) {
    EXPECT_EQ(dayTitle(u"someday"_qs), u"someday"_qs);
    EXPECT_EQ(dayTitle({}), QString());
}

// Lists that share some rows with the one before, in another order, with changes, and some rows
// that no hoard has stored.
NotificationList randomList(std::mt19937& random, const NotificationList& before) {
    const auto below = [&](int limit) {
        return std::uniform_int_distribution(0, limit - 1)(random);
    };
    NotificationList list;
    for (const CapturedNotification& old : before) {
        if (below(4) == 0)
            continue;
        list.push_back(row(old.dbId, below(5) == 0 ? QString::number(below(9)) : old.title));
    }
    for (int i = below(5); i > 0; --i)
        list.insert(list.begin() + below(int(list.size()) + 1), row(below(30)));
    for (int i = below(3); i > 0 && list.size() > 1; --i)
        std::swap(list[std::size_t(below(int(list.size())))],
                  list[std::size_t(below(int(list.size())))]);
    return list;
}

class RandomListsTest : public ModelTest, public ::testing::WithParamInterface<unsigned> {};

TEST_P(RandomListsTest, AreToldSoThatAViewEndsWithTheListItself) {
    std::mt19937 random(GetParam());
    NotificationList list;
    for (int step = 0; step < 200; ++step) {
        list = randomList(random, list);
        setRows(list);
        ASSERT_EQ(mirror_.rows, list) << "at step " << step;
        ASSERT_EQ(model_.rowCount(), int(list.size()));
    }
    EXPECT_EQ(mirror_.resets, 0);
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomListsTest, ::testing::Range(1U, 9U));

TEST_F(ModelTest, TellsOfEveryRowAfterAChangeOfTheTimeZone) {
    const testing::TimeZoneScope rome("Europe/Rome");
    setRows(rows({3, 2, 1}));
    setRows(rows({3, 2, 1}));
    changed_.clear();
    const QString before = at(1, Role::TimeText).toString();
    const testing::TimeZoneScope tokyo("Asia/Tokyo");
    setRows(rows({3, 2, 1}));
    int whole = 0;
    for (const QList<QVariant>& change : changed_)
        whole += change[2].value<QList<int>>().isEmpty();
    EXPECT_EQ(whole, 3);
    EXPECT_NE(at(1, Role::TimeText).toString(), before);
}

} // namespace
} // namespace tessarine
