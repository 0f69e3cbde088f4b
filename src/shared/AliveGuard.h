#pragma once

#include <memory>
#include <utility>

namespace tessarine {

// Tells work that comes back later whether the object that it is for still lives. A member of an
// object that is made, used and destroyed on the main thread. Work that goes through a worker
// carries the guarded function along and calls it when it is back on the main thread.
class AliveGuard {
public:
    class Token {
    public:
        // Lasts on the main thread only. Elsewhere it may be outdated the moment it is told.
        bool isAlive() const { return !life_.expired(); }

    private:
        friend class AliveGuard;
        explicit Token(std::weak_ptr<const bool> life)
            : life_(std::move(life)) {}

        std::weak_ptr<const bool> life_;
    };

    AliveGuard() = default;
    AliveGuard(const AliveGuard&) = delete;
    AliveGuard& operator=(const AliveGuard&) = delete;

    // May be copied and asked on any thread.
    Token token() const { return Token(life_); }

    // The function, made to do nothing once the object is gone. To be called on the main thread,
    // copied and destroyed on any.
    template <typename Function>
    auto guard(Function function) const {
        return [token = token(), function = std::move(function)](const auto&... arguments) {
            if (token.isAlive())
                function(arguments...);
        };
    }

private:
    std::shared_ptr<const bool> life_ = std::make_shared<const bool>(true);
};

} // namespace tessarine
