#pragma once

#include "platform/SystemAppearance.h"

#include <memory>

namespace tessarine {

// The appearance of the application object, the system's accent colour, and what the user has set
// for the display under Accessibility; all followed.
class MacSystemAppearance : public SystemAppearance {
    Q_OBJECT

public:
    MacSystemAppearance(); // after the application object
    ~MacSystemAppearance() override;

    bool prefersDark() const override;
    bool reducesMotion() const override;
    std::optional<QColor> accentColour() const override;
    bool prefersHighContrast() const override;
    void setAppearance(Appearance appearance) override;

private:
    struct Observations;

    std::unique_ptr<Observations> observations_;
};

} // namespace tessarine
