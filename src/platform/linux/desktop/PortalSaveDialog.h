#pragma once

#include "platform/SavePanel.h"

#include <QDBusConnection>
#include <QDialog>
#include <QVariantMap>

#include <optional>

class QDBusPendingCallWatcher;
class QWindow;

namespace tessarine {

// The desktop's own dialog for saving a file, which its portal shows, as the documentation of the
// portal's FileChooser and Request interfaces has it. Qt has one behind a platform theme; that one
// of Qt 6.4 gives X11's window numbers to Wayland's portals, some of which show nothing then.
// This dialog itself is never drawn: it keeps the program's windows from input meanwhile.
class PortalSaveDialog : public QDialog {
    Q_OBJECT

public:
    enum class Outcome {
        Chosen,      // path() tells what
        Cancelled,   // by the user
        Unavailable, // no portal, or one that gave up: somebody else may ask the user
    };

    PortalSaveDialog(const QDBusConnection& bus, const SavePanel::Request& request);

    // Returns when the user has decided, or when no portal can ask them. The portal's dialog
    // belongs to the window, which may be null, and starts in the folder.
    Outcome run(QWindow* window, const QString& folder);

    const QString& path() const { return path_; }

private Q_SLOTS:
    void onResponse(uint response, const QVariantMap& results);

private:
    void ask(QWindow* window, const QString& folder);
    void onAnswer(const QDBusPendingCallWatcher& call);
    void end(Outcome outcome);

    QDBusConnection bus_;
    const SavePanel::Request request_;
    const QString token_;
    std::optional<Outcome> outcome_;
    QString path_;
};

} // namespace tessarine
