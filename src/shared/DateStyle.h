#pragma once

namespace tessarine {

// How much of a date, or of a time of day, a text tells, as the user's locale has it.
enum class DateStyle { none, brief, medium, full };

} // namespace tessarine
