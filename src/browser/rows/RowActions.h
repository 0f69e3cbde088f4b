#pragma once

#include "browser/rows/RowContents.h"
#include "shared/CapturedNotification.h"

#include <QObject>
#include <QString>
#include <QUuid>
#include <QtQml/qqmlregistration.h>

#include <functional>
#include <optional>

namespace tessarine {

class AppLauncher;
class BrowserList;
class HoardStore;
class ListSelection;
class Overlays;

// What is done with single rows and groups of the list: focus, preview, pin, copy, open, delete.
// Rows are known by their ids in memory, which every reload renews: it ends the focus, and an
// action on an id of before does nothing. Main thread.
class RowActions : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("ContentView brings it")
    Q_PROPERTY(bool showPreview READ isPreviewing WRITE setShowPreview NOTIFY previewChanged)
    Q_PROPERTY(tessarine::PreviewContent preview READ preview NOTIFY previewChanged)

public:
    // What the actions reach; all outlive them.
    struct Services {
        BrowserList& list;
        ListSelection& selection;
        Overlays& overlays;
        HoardStore& hoard;
        AppLauncher& launcher;
        std::function<void(const QString&)> setPasteboard; // replaces its content by a plain text
    };

    explicit RowActions(Services services);

    // Clicks and focus

    Q_INVOKABLE void onSingleTap(const QUuid& id);
    Q_INVOKABLE void onDoubleTap(const QUuid& id);
    const QUuid& focusedNotifId() const { return focusedNotifId_; }
    std::optional<CapturedNotification> focusedNotification() const; // none that is not shown
    void clearFocus();                                               // and closes the preview

    // One row

    Q_INVOKABLE void togglePinned(const QUuid& id);
    Q_INVOKABLE bool copyToPasteboard(const QUuid& id); // false when there is nothing to copy
    Q_INVOKABLE void openInApp(const QUuid& id);
    Q_INVOKABLE void deleteNotification(const QUuid& id);

    // The context menu of a row; empty in selection mode. Its entries act on the row also when a
    // reload has given it another id in the meantime.
    Q_INVOKABLE tessarine::RowMenuContent menuOf(const QUuid& id);

    // Many rows

    Q_INVOKABLE void deleteAllFromApp(const QString& appName);
    Q_INVOKABLE void deleteAllFromDate(const QString& key);
    Q_INVOKABLE void deleteGroup(const QString& key); // whichever of the two the groups are

    // The preview of the focused row

    Q_INVOKABLE void previewRow(const QUuid& id); // which gets the focus
    bool isPreviewing() const { return showPreview_ && focusedNotification().has_value(); }
    void setShowPreview(bool shown); // does not open without a focused row
    PreviewContent preview() const;
    Q_INVOKABLE void copyPreview();
    Q_INVOKABLE void openPreviewed(); // no deep link, no lookup by name, no banner

Q_SIGNALS:
    void previewChanged();

private:
    std::optional<CapturedNotification> find(const QUuid& id) const;
    void setFocus(const QUuid& id);
    void closeOrphanedPreview();

    Services services_;
    QUuid focusedNotifId_;
    bool showPreview_ = false;
    std::optional<CapturedNotification> menuRow_; // of the context menu that was opened last
};

} // namespace tessarine
