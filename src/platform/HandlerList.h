#pragma once

#include <algorithm>
#include <functional>
#include <memory>
#include <vector>

namespace tessarine {

// Who wants to be told of something, as long as they keep the token they were given. A handler may
// add and end handlers, itself too. Main thread.
template <typename... Args>
class HandlerList {
public:
    using Handler = std::function<void(Args...)>;

    // The handler is called until the last copy of the token goes.
    std::shared_ptr<void> add(Handler handler) {
        auto token = std::make_shared<Handler>(std::move(handler));
        handlers_.push_back(token);
        return token;
    }

    void call(Args... args) {
        const std::vector<std::weak_ptr<Handler>> told = handlers_;
        for (const std::weak_ptr<Handler>& weak : told) {
            if (const std::shared_ptr<Handler> handler = weak.lock())
                (*handler)(args...);
        }
        std::erase_if(handlers_, [](const auto& weak) { return weak.expired(); });
    }

    bool isEmpty() const {
        return std::all_of(handlers_.begin(), handlers_.end(),
                           [](const auto& weak) { return weak.expired(); });
    }

private:
    std::vector<std::weak_ptr<Handler>> handlers_;
};

} // namespace tessarine
