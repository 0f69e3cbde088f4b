#pragma once

#include "browser/DateRangePreset.h"
#include "browser/InlineBanner.h"
#include "browser/ListDerivation.h"
#include "browser/NotificationListModel.h"
#include "export/ExportOptionsSheet.h"

#include <QObject>
#include <QPointer>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

#include <functional>
#include <memory>
#include <optional>

namespace tessarine {

class AppLauncher;
class HoardStore;
class NotificationListener;
class PreferencesStore;
class Scheduler;

// The state of the browser and all that can be done in it. What is shown derives from the
// listener's list and the fields below; nothing here is kept beyond the process. Rows are told
// apart by their ids in memory, which every reload renews: a reload so ends focus and selection.
// Main thread.
class ContentView : public QObject {
    Q_OBJECT
    QML_NAMED_ELEMENT(ContentViewState)
    QML_UNCREATABLE("The main window brings it")

    // The list and what is derived from it.
    Q_PROPERTY(Face face READ face NOTIFY listChanged)
    Q_PROPERTY(tessarine::NotificationListModel* lines READ lines CONSTANT)
    Q_PROPERTY(bool hasNotifications READ hasNotifications NOTIFY listChanged)
    Q_PROPERTY(bool canLoadOlder READ canLoadOlder NOTIFY listChanged)
    Q_PROPERTY(QString counterText READ counterText NOTIFY listChanged)
    Q_PROPERTY(QStringList apps READ apps NOTIFY listChanged)

    // The toolbar.
    Q_PROPERTY(QString searchText READ searchText WRITE setSearchText NOTIFY searchTextChanged)
    Q_PROPERTY(QStringList appLabels READ appLabels NOTIFY listChanged)
    Q_PROPERTY(
        int selectedAppIndex READ selectedAppIndex WRITE setSelectedAppIndex NOTIFY listChanged)
    Q_PROPERTY(QString selectedAppLabel READ selectedAppLabel NOTIFY listChanged)
    Q_PROPERTY(int sortMode READ sortModeIndex WRITE setSortModeIndex NOTIFY sortModeChanged)
    Q_PROPERTY(int groupMode READ groupModeIndex WRITE setGroupModeIndex NOTIFY groupModeChanged)
    Q_PROPERTY(QStringList sortLabels READ sortLabels CONSTANT)
    Q_PROPERTY(QStringList groupLabels READ groupLabels CONSTANT)

    // Selection and deletion.
    Q_PROPERTY(int revision READ revision NOTIFY selectionChanged)
    Q_PROPERTY(bool selectionMode READ selectionMode NOTIFY selectionChanged)
    Q_PROPERTY(int selectedCount READ selectedCount NOTIFY selectionChanged)
    Q_PROPERTY(QString selectionText READ selectionText NOTIFY selectionChanged)
    Q_PROPERTY(bool everySelected READ everySelected NOTIFY selectionChanged)
    Q_PROPERTY(QString deleteSelectedTitle READ deleteSelectedTitle NOTIFY selectionChanged)
    Q_PROPERTY(QString deleteAllTitle READ deleteAllTitle NOTIFY listChanged)
    Q_PROPERTY(bool showDeleteSelectedConfirm MEMBER showDeleteSelectedConfirm_ WRITE
                   setShowDeleteSelectedConfirm NOTIFY presentationChanged)
    Q_PROPERTY(bool showDeleteAllConfirm MEMBER showDeleteAllConfirm_ WRITE setShowDeleteAllConfirm
                   NOTIFY presentationChanged)
    Q_PROPERTY(bool showDatePickerPopover MEMBER showDatePickerPopover_ WRITE
                   setShowDatePickerPopover NOTIFY presentationChanged)
    Q_PROPERTY(QVariantList presets READ presets CONSTANT)
    Q_PROPERTY(QVariantList popoverMonths READ popoverMonths NOTIFY presentationChanged)
    Q_PROPERTY(bool hasDays READ hasDays NOTIFY presentationChanged)

    // What stands above the list for a while.
    Q_PROPERTY(bool showExportSheet READ showExportSheet WRITE setShowExportSheet NOTIFY
                   presentationChanged)
    Q_PROPERTY(tessarine::ExportOptionsSheet* exportSheet READ exportSheet NOTIFY exportSheetMade)
    Q_PROPERTY(bool showPreview READ isPreviewing WRITE setShowPreview NOTIFY presentationChanged)
    Q_PROPERTY(QVariantMap preview READ preview NOTIFY presentationChanged)
    Q_PROPERTY(bool hasInlineBanner READ hasInlineBanner NOTIFY inlineBannerChanged)
    Q_PROPERTY(tessarine::InlineBanner inlineBanner READ inlineBanner NOTIFY inlineBannerChanged)

public:
    using DateRangePreset = tessarine::DateRangePreset;

    // Loading lasts until the listener has published its first list, empty or not. Waiting stands
    // for an empty hoard, Fruitless for a filter that nothing passes.
    enum class Face { Loading, Waiting, List, Fruitless };
    Q_ENUM(Face)

    struct Services {
        std::shared_ptr<NotificationListener> listener;
        HoardStore& hoard;
        PreferencesStore& preferences;
        Scheduler& scheduler;
        AppLauncher& launcher;
        std::function<void(const QString&)> setPasteboard; // replaces its content by a plain text
        std::function<std::unique_ptr<ExportOptionsSheet>(NotificationList,
                                                          std::function<void()> onDismiss)>
            makeExportSheet;
    };

    explicit ContentView(Services services);

    // The list

    NotificationList filteredNotifications() const;
    std::vector<NotificationGroup> groupedByApp() const;
    std::vector<NotificationGroup> groupedByDate() const;

    Face face() const { return face_; }
    NotificationListModel* lines() { return &lines_; }
    bool hasNotifications() const;
    bool canLoadOlder() const;
    QString counterText() const;
    const QStringList& apps() const { return apps_; }
    qint64 hoardTotalCount() const { return hoardTotalCount_; }
    qint64 loadLimit() const { return loadLimit_; }

    // To be called each time that the view is shown, and hidden. Shown, it counts the hoard;
    // hidden, it derives nothing.
    void appear();
    void disappear();

    void refreshList(); // from the hoard, as many rows as this view has asked for
    Q_INVOKABLE void loadOlder();

    // The toolbar

    const QString& searchText() const { return searchText_; }
    void setSearchText(const QString& text);
    const QString& selectedApp() const { return selectedApp_; }
    void setSelectedApp(const QString& appName);
    SortMode sortMode() const { return sortMode_; }
    void setSortMode(SortMode mode);
    GroupMode groupMode() const { return groupMode_; }
    void setGroupMode(GroupMode mode);
    Q_INVOKABLE void toggleGroup(const QString& key);
    const QSet<QString>& collapsedGroups() const { return collapsedGroups_; }

    // Selection

    bool selectionMode() const { return selectionMode_; }
    const QSet<QUuid>& selectedIds() const { return marks_.selected; }
    int selectedCount() const { return int(marks_.selected.size()); }
    QString selectionText() const;
    bool everySelected() const;
    Q_INVOKABLE void enterSelectionMode();
    Q_INVOKABLE void exitSelectionMode();
    Q_INVOKABLE void toggleSelection(const QUuid& id);
    Q_INVOKABLE void selectAllVisible();
    Q_INVOKABLE void selectApp(const QString& appName);
    void selectRange(double start, double end); // both inclusive
    void selectDay(const QString& key);
    Q_INVOKABLE void selectGroup(const QString& key);
    Q_INVOKABLE void deselectGroup(const QString& key);
    Q_INVOKABLE void onSelectPreset(int preset); // by its place in the list of presets
    Q_INVOKABLE void onSelectDay(const QString& key);

    // Focus and single rows

    std::optional<CapturedNotification> focusedNotification() const;
    const QUuid& focusedNotifId() const { return marks_.focused; }
    Q_INVOKABLE void onSingleTap(const QUuid& id);
    Q_INVOKABLE void onDoubleTap(const QUuid& id);
    void clearFocus(); // and closes the preview
    Q_INVOKABLE void togglePinned(const QUuid& id);
    Q_INVOKABLE bool copyToPasteboard(const QUuid& id); // false when there is nothing to copy
    Q_INVOKABLE void openInApp(const QUuid& id);
    Q_INVOKABLE void deleteNotification(const QUuid& id);
    Q_INVOKABLE void deleteAllFromApp(const QString& appName);
    Q_INVOKABLE void deleteAllFromDate(const QString& key);
    Q_INVOKABLE void deleteGroup(const QString& key); // whichever of the two the groups are
    Q_INVOKABLE void deleteSelected();
    Q_INVOKABLE void deleteEverything();
    // What the context menu of a row says. Its entries act on the row also when a reload has given
    // it another id in the meantime.
    Q_INVOKABLE QVariantMap menuOf(const QUuid& id);

    // What stands above the list

    bool isPreviewing() const { return showPreview_ && focusedNotification().has_value(); }
    void setShowPreview(bool shown);
    QVariantMap preview() const;
    Q_INVOKABLE void copyPreview();
    Q_INVOKABLE void openPreviewed();
    bool hasInlineBanner() const { return inlineBanner_.has_value(); }
    InlineBanner inlineBanner() const { return inlineBanner_.value_or(InlineBanner()); }
    void showBanner(const InlineBanner& banner); // for four seconds
    Q_INVOKABLE void dismissBanner();
    bool showExportSheet() const { return showExportSheet_; }
    ExportOptionsSheet* exportSheet() const { return exportSheet_; } // null while there is none
    void setShowExportSheet(bool shown);
    bool showDeleteSelectedConfirm() const { return showDeleteSelectedConfirm_; }
    void setShowDeleteSelectedConfirm(bool shown);
    bool showDeleteAllConfirm() const { return showDeleteAllConfirm_; }
    void setShowDeleteAllConfirm(bool shown);
    bool showDatePickerPopover() const { return showDatePickerPopover_; }
    void setShowDatePickerPopover(bool shown);

Q_SIGNALS:
    void listChanged();
    void searchTextChanged();
    void sortModeChanged();
    void groupModeChanged();
    void derivationChanged(); // the user wants another list: a view begins at its top
    void selectionChanged();
    void presentationChanged();
    void inlineBannerChanged();
    void exportSheetMade();

private:
    const NotificationList& notifications() const;
    HoardStore& hoard() const { return services_.hoard; }
    void takeList();
    void readAhead();
    void updateLines();
    void updateMarks();
    void tellOfMarks();
    void closeOrphanedPreview();
    ListEntries makeEntries(const NotificationList& rows) const;
    void changeDerivation();
    std::optional<CapturedNotification> find(const QUuid& id) const;
    QSet<QUuid> idsOfGroup(const QString& key) const;
    void addToSelection(const NotificationList& rows);
    void keepKnownSelection();
    void finishToggle(const QString& key, int number);
    QStringList appLabels() const;
    int selectedAppIndex() const;
    void setSelectedAppIndex(int index);
    QString selectedAppLabel() const;
    int revision() const { return revision_; }
    int sortModeIndex() const { return int(sortMode_); }
    void setSortModeIndex(int index);
    int groupModeIndex() const { return int(groupMode_); }
    void setGroupModeIndex(int index);
    static QStringList sortLabels();
    static QStringList groupLabels();
    static QVariantList presets();
    QVariantList popoverMonths() const;
    bool hasDays() const;
    QString deleteSelectedTitle() const;
    QString deleteAllTitle() const;
    void present(bool& flag, bool shown);

    Services services_;
    QString searchText_;
    GroupMode groupMode_ = GroupMode::none;
    SortMode sortMode_ = SortMode::newest;
    QString selectedApp_ = everyApp;
    QSet<QString> collapsedGroups_;
    QHash<QString, int>
        changingGroups_; // groups whose rows fade, each with its last toggle's number
    int toggleCount_ = 0;
    std::optional<CapturedNotification> menuRow_; // of the context menu that was opened last
    bool showExportSheet_ = false;
    QPointer<ExportOptionsSheet> exportSheet_;
    std::optional<InlineBanner> inlineBanner_;
    int bannerTask_ = 0; // the number of the last one; only that one may clear the banner
    bool selectionMode_ = false;
    NotificationListModel::Marks marks_; // selectedIds and focusedNotifId among them
    bool showDeleteSelectedConfirm_ = false;
    bool showDeleteAllConfirm_ = false;
    bool showDatePickerPopover_ = false;
    bool showPreview_ = false;
    qint64 hoardTotalCount_ = 0;
    qint64 loadLimit_ = 500;

    bool isShown_ = false;
    bool hasList_ = false; // the listener has published one, empty or not
    QStringList apps_;     // of the list
    Face face_ = Face::Loading;
    std::size_t loadedCount_ = 0; // of the list when it was last taken
    qsizetype shownCount_ = 0;    // of the rows that pass the filters
    int revision_ = 0; // of lines and marks, for views that ask the model by a line's number
    NotificationListModel lines_{marks_};
};

} // namespace tessarine
