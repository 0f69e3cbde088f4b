#pragma once

#include <QString>

#include <functional>
#include <memory>

namespace tessarine {

// Sees to it that one copy of the program uses a file. Main thread.
class SingleInstance {
public:
    // What is asked of the running copy. The token is what lets it come to the front although the
    // user is elsewhere, as whoever asks hands it over; empty where there is none.
    struct Requests {
        std::function<void(const QString& token)> activate; // what another start asks for
        std::function<void(const QString& token)> open;     // the main window
        std::function<void()> quit;
    };

    SingleInstance() = default;
    SingleInstance(const SingleInstance&) = delete;
    SingleInstance& operator=(const SingleInstance&) = delete;
    virtual ~SingleInstance() = default;

    // Whether this process may use the file: false while another copy has the claim, which then
    // stands until that one's process ends, however it ends. True also where the system can keep no
    // claim, as in a folder that can't be written to. Makes the file's folder where it is missing;
    // changes nothing on the disk while another copy has the claim.
    virtual bool claim() = 0;

    // After a claim that was refused: asks the first copy to come to the front, and returns without
    // waiting for it to do so.
    virtual void activateFirst() = 0;

    // After a claim that was granted: what to do when another copy asks, or the system does for the
    // user. Needs the application object; requests from before are kept.
    virtual void onRequests(Requests requests) = 0;
};

// The one of the system that the program was built for, for the file at a path, which need not be
// there yet. Works before there is an application object.
std::unique_ptr<SingleInstance> makeSingleInstance(const QString& path);

} // namespace tessarine
