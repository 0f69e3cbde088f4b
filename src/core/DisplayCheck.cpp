#include "core/DisplayCheck.h"

#include <QString>
#include <QtGlobal>

#include <cstdio>
#include <cstdlib>
#include <utility>
#include <vector>

namespace tessarine {

namespace {

struct Message {
    QtMsgType type;
    QString text;
};

QtMessageHandler handlerBefore = nullptr;
std::vector<Message> heldBack;

// Making the application object has no other fatal end. Workers don't run yet: nothing is lost when
// the process ends here.
void holdBack(QtMsgType type, const QMessageLogContext&, const QString& text) {
    if (type == QtFatalMsg) {
        std::fputs("Tessarine needs a graphical session: there is no display to open windows on.\n",
                   stderr);
        std::_Exit(EXIT_FAILURE);
    }
    heldBack.push_back({type, text});
}

} // namespace

DisplayCheck::DisplayCheck() {
    handlerBefore = qInstallMessageHandler(holdBack);
}

DisplayCheck::~DisplayCheck() {
    qInstallMessageHandler(handlerBefore);
    for (const Message& message : std::exchange(heldBack, {}))
        qt_message_output(message.type, QMessageLogContext(), message.text);
}

} // namespace tessarine
