#pragma once

#include "platform/SingleInstance.h"

#include <QString>

namespace tessarine {

// Another copy is a running application with the program's bundle identifier. The system brings it
// to the front by itself, so that it is not asked to do anything.
class MacSingleInstance : public SingleInstance {
public:
    // The path of the file that one copy may use.
    explicit MacSingleInstance(QString path);

    bool claim() override;
    void activateFirst() override;
    void onRequests(Requests) override {}

private:
    const QString path_;
};

} // namespace tessarine
