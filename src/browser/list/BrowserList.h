#pragma once

#include "browser/list/CollapsedGroups.h"
#include "browser/list/ListDerivation.h"
#include "browser/list/LoadedRows.h"
#include "browser/list/NotificationListModel.h"

#include <QObject>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

#include <functional>
#include <limits>
#include <memory>

namespace tessarine {

class PreferencesStore;
class RepeatingTimer;

// The browser's list: which of the loaded rows pass the search and the app filter, how they are
// sorted and grouped, and the lines that a view shows of them. The lines are derived again with
// each list that is loaded and each wish of the user, and kept until the next. Nothing here
// outlives the process. Main thread.
class BrowserList : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("ContentView brings it")

    Q_PROPERTY(Face face READ face NOTIFY listChanged)
    Q_PROPERTY(tessarine::NotificationListModel* lines READ lines CONSTANT)
    Q_PROPERTY(bool hasNotifications READ hasNotifications NOTIFY listChanged)
    Q_PROPERTY(bool canLoadOlder READ canLoadOlder NOTIFY listChanged)
    Q_PROPERTY(QString counterText READ counterText NOTIFY listChanged)
    Q_PROPERTY(QString waitingDetail READ waitingDetail NOTIFY listChanged)
    Q_PROPERTY(QString noResultsDetail READ noResultsDetail NOTIFY listChanged)

    // The toolbar.
    Q_PROPERTY(QString searchText READ searchText WRITE setSearchText NOTIFY searchTextChanged)
    Q_PROPERTY(QList<QString> appLabels READ appLabels NOTIFY listChanged)
    Q_PROPERTY(
        int selectedAppIndex READ selectedAppIndex WRITE setSelectedAppIndex NOTIFY listChanged)
    Q_PROPERTY(QString selectedAppLabel READ selectedAppLabel NOTIFY listChanged)
    Q_PROPERTY(int sortMode READ sortModeIndex WRITE setSortModeIndex NOTIFY sortModeChanged)
    Q_PROPERTY(int groupMode READ groupModeIndex WRITE setGroupModeIndex NOTIFY groupModeChanged)
    Q_PROPERTY(QList<QString> sortLabels READ sortLabels CONSTANT)
    Q_PROPERTY(QList<QString> groupLabels READ groupLabels CONSTANT)

public:
    // Loading lasts until the listener has published its first list, empty or not. Waiting stands
    // for an empty hoard, NoResults for a filter that nothing passes.
    enum class Face { Loading, Waiting, List, NoResults };
    Q_ENUM(Face)

    // Whether announcements reach the program, as things stand.
    using CanSeeNotifications = std::function<bool()>;

    // The references outlive the list.
    BrowserList(std::shared_ptr<NotificationListener> listener, HoardStore& hoard,
                PreferencesStore& preferences, Scheduler& scheduler,
                CanSeeNotifications canSeeNotifications);
    ~BrowserList() override;

    // What is loaded, and how much of the hoard that is

    const NotificationList& notifications() const { return loaded_.notifications(); }
    bool hasNotifications() const { return !notifications().empty(); }
    const QStringList& uniqueApps() const { return uniqueApps_; }
    qint64 hoardTotalCount() const { return loaded_.hoardTotalCount(); }
    qint64 loadLimit() const { return loaded_.loadLimit(); }
    bool canLoadOlder() const { return loaded_.canLoadOlder(); }

    // To be called each time that the view is shown, and hidden: hidden, it takes no list.
    void appear();
    void disappear();

    void refreshList() { loaded_.refresh(); } // from the hoard, as many rows as were asked for
    Q_INVOKABLE void loadOlder() { loaded_.loadOlder(); }
    void deleteEverything(); // and shows every application, from the first limit

    // What is shown of it

    const NotificationList& filteredNotifications() const { return filtered_; }
    std::vector<NotificationGroup> groupedByApp() const;
    std::vector<NotificationGroup> groupedByDate() const;
    Face face() const { return face_; }
    NotificationListModel* lines() { return &lines_; }
    QString counterText() const;

    // What an empty list says below its first line: what will be there, or why nothing can be,
    // which a shown one asks again each second; and where to look for what no row passes.
    QString waitingDetail();
    QString noResultsDetail() const;

    // What the user wishes

    const QString& searchText() const { return searchText_; }
    void setSearchText(const QString& text);
    const QString& selectedApp() const { return selectedApp_; }
    void setSelectedApp(const QString& appName);
    SortMode sortMode() const { return sortMode_; }
    void setSortMode(SortMode mode);
    GroupMode groupMode() const { return groupMode_; }
    void setGroupMode(GroupMode mode);
    const QSet<QString>& collapsedGroups() const { return collapsed_.keys(); }

    // A group that closes has as many rows fade out as can be seen of it.
    void toggleGroup(const QString& key, int fadingRows = std::numeric_limits<int>::max());
    bool isFading(const QString& key) const { return collapsed_.fading().contains(key); }
    void openGroup(const QString& key);

    // The same by the places of a toolbar's entries. The app's is -1 when all its rows have left
    // the list: the filter holds all the same.
    QStringList appLabels() const;
    int selectedAppIndex() const;
    void setSelectedAppIndex(int index);
    QString selectedAppLabel() const;

Q_SIGNALS:
    void listChanged();
    void searchTextChanged();
    void sortModeChanged();
    void groupModeChanged();
    void derivationChanged(); // the user wants another list: a view begins at its top

private:
    void takeList();
    void derive();
    void changeDerivation();
    void watchAccess();
    void checkAccess();
    Face derivedFace() const;
    ListEntries entries() const;
    int sortModeIndex() const { return int(sortMode_); }
    void setSortModeIndex(int index);
    int groupModeIndex() const { return int(groupMode_); }
    void setGroupModeIndex(int index);
    static QStringList sortLabels();
    static QStringList groupLabels();

    HoardStore& hoard_;
    Scheduler& scheduler_;
    CanSeeNotifications canSeeNotifications_;
    bool couldSeeNotifications_ = true; // when it was last asked
    bool isShown_ = false;
    std::unique_ptr<RepeatingTimer> accessWatch_; // while an empty list is shown
    LoadedRows loaded_;
    QString searchText_;
    QString selectedApp_ = everyApp;
    SortMode sortMode_ = SortMode::newest;
    GroupMode groupMode_ = GroupMode::none;
    CollapsedGroups collapsed_;

    // Derived from the above.
    QStringList uniqueApps_;
    NotificationList filtered_;
    Face face_ = Face::Loading;
    NotificationListModel lines_;
};

} // namespace tessarine
