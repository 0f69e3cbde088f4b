#pragma once

#include <QString>

#include <optional>

namespace tessarine {

// The system's dialog that asks where to save a file. It takes any kind of file, lets the user make
// folders, and asks before it gives the path of a file that is there. Main thread.
class SavePanel {
public:
    struct Request {
        QString name; // the file name that is suggested, with its extension
        QString title;
        QString prompt;         // on the button that saves
        QString extension = {}; // of a name that is given without one; empty: as it is given

        bool operator==(const Request&) const = default;
    };

    SavePanel() = default;
    SavePanel(const SavePanel&) = delete;
    SavePanel& operator=(const SavePanel&) = delete;
    virtual ~SavePanel() = default;

    // Returns when the user has decided: an absolute path, or nothing where the user cancelled.
    // Events go on meanwhile, so anything may have happened to the caller's windows.
    virtual std::optional<QString> runModal(const Request& request) = 0;
};

} // namespace tessarine
