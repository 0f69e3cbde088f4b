#pragma once

#include <cerrno>
#include <system_error>
#include <utility>

#include <sys/stat.h>
#include <unistd.h>

namespace tessarine {

// The mode of files that nobody else reads.
constexpr mode_t ownerOnly = S_IRUSR | S_IWUSR;

inline std::error_code lastError() {
    return {errno, std::generic_category()};
}

// An open file that is closed with the object.
class Descriptor {
public:
    Descriptor() = default;
    explicit Descriptor(int number)
        : number_(number) {}
    Descriptor(Descriptor&& other) noexcept
        : number_(std::exchange(other.number_, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        std::swap(number_, other.number_);
        return *this;
    }
    ~Descriptor() { close(); }

    bool isOpen() const { return number_ >= 0; }
    int number() const { return number_; }

    // Some file systems tell only here that the bytes found no room.
    std::error_code close() {
        if (!isOpen())
            return {};
        return ::close(std::exchange(number_, -1)) == 0 || errno == EINTR ? std::error_code()
                                                                          : lastError();
    }

private:
    int number_ = -1;
};

} // namespace tessarine
