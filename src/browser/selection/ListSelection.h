#pragma once

#include "browser/list/BrowserList.h"
#include "browser/selection/DateSelection.h"

#include <QObject>
#include <QSet>
#include <QStringList>
#include <QUuid>
#include <QtQml/qqmlregistration.h>

namespace tessarine {

class HoardStore;
class Scheduler;

// Selection mode: which rows of the list are selected, and the deletion of these or of everything,
// each after a question. Rows are known by their ids in memory, which every reload renews: it
// leaves the selection with ids that match nothing. What adds to the selection adds rows that are
// shown. Main thread.
class ListSelection : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("ContentView brings it")
    Q_PROPERTY(bool selectionMode READ selectionMode NOTIFY selectionChanged)
    Q_PROPERTY(int selectedCount READ selectedCount NOTIFY selectionChanged)
    Q_PROPERTY(QString selectionText READ selectionText NOTIFY selectionChanged)
    Q_PROPERTY(bool everySelected READ everySelected NOTIFY selectionChanged)
    Q_PROPERTY(QList<QString> apps READ apps NOTIFY listChanged)
    Q_PROPERTY(tessarine::DateSelection* dates READ dates CONSTANT)

    // The questions before a deletion.
    Q_PROPERTY(bool showDeleteSelectedConfirm READ showDeleteSelectedConfirm WRITE
                   setShowDeleteSelectedConfirm NOTIFY questionChanged)
    Q_PROPERTY(QString deleteSelectedTitle READ deleteSelectedTitle NOTIFY selectionChanged)
    Q_PROPERTY(bool showDeleteAllConfirm READ showDeleteAllConfirm WRITE setShowDeleteAllConfirm
                   NOTIFY questionChanged)
    Q_PROPERTY(QString deleteAllTitle READ deleteAllTitle NOTIFY listChanged)

public:
    // The references outlive the selection.
    ListSelection(BrowserList& list, HoardStore& hoard, Scheduler& scheduler);

    bool selectionMode() const { return selectionMode_; }
    const QSet<QUuid>& selectedIds() const { return selectedIds_; }
    int selectedCount() const { return int(selectedIds_.size()); }
    bool everySelected() const; // by number: stale ids count as well
    QString selectionText() const;
    const QStringList& apps() const { return list_.uniqueApps(); }
    DateSelection* dates() { return &dates_; }

    Q_INVOKABLE void enterSelectionMode();
    Q_INVOKABLE void exitSelectionMode();
    Q_INVOKABLE void toggleSelection(const QUuid& id);
    Q_INVOKABLE void selectAllVisible(); // or nothing, when every row is selected
    Q_INVOKABLE void selectApp(const QString& appName);
    void selectRange(double start, double end); // both inclusive
    void selectDay(const QString& key);
    Q_INVOKABLE void selectGroup(const QString& key);
    Q_INVOKABLE void deselectGroup(const QString& key);
    void deselect(const QUuid& id);
    void keepLoaded(); // deselects what is not in the loaded list

    // Rows that a search has hidden since they were selected go too.
    Q_INVOKABLE void deleteSelected();
    Q_INVOKABLE void deleteEverything();

    bool showDeleteSelectedConfirm() const { return showDeleteSelectedConfirm_; }
    void setShowDeleteSelectedConfirm(bool shown);
    QString deleteSelectedTitle() const;
    bool showDeleteAllConfirm() const { return showDeleteAllConfirm_; }
    void setShowDeleteAllConfirm(bool shown);
    QString deleteAllTitle() const; // counts the loaded rows

Q_SIGNALS:
    void selectionChanged();
    void listChanged();
    void questionChanged();

private:
    void select(QSet<QUuid> ids);

    template <typename Test>
    void addShown(const Test& test);

    BrowserList& list_;
    HoardStore& hoard_;
    DateSelection dates_;
    bool selectionMode_ = false;
    QSet<QUuid> selectedIds_;
    bool showDeleteSelectedConfirm_ = false;
    bool showDeleteAllConfirm_ = false;
};

} // namespace tessarine
