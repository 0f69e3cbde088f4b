#pragma once

#include <utility>

#include <CoreFoundation/CoreFoundation.h>

namespace tessarine {

// One reference to an object of CoreFoundation, given back with it; null holds none. Nothing else
// in the program gives any back.
template <typename Ref>
class OwnedRef {
public:
    OwnedRef() = default;

    // Takes over what a function with Create or Copy in its name has given.
    explicit OwnedRef(Ref CF_CONSUMED given)
        : ref_(given) {}

    // One more reference to what somebody else owns.
    static OwnedRef sharing(Ref borrowed) {
        if (borrowed)
            CFRetain(borrowed);
        return OwnedRef(borrowed);
    }

    OwnedRef(const OwnedRef& other)
        : OwnedRef(sharing(other.ref_)) {}
    OwnedRef(OwnedRef&& other) noexcept
        : ref_(std::exchange(other.ref_, nullptr)) {}
    OwnedRef& operator=(OwnedRef other) noexcept {
        std::swap(ref_, other.ref_);
        return *this;
    }
    ~OwnedRef() {
        if (ref_)
            CFRelease(ref_);
    }

    Ref get() const { return ref_; }
    explicit operator bool() const { return ref_ != nullptr; }

private:
    Ref ref_ = nullptr;
};

} // namespace tessarine
