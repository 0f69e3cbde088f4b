#pragma once

#include <QString>

#include <variant>

namespace tessarine {

// What came of an export: the path of the file, or one line that can be shown as it is.
class ExportResult {
public:
    static ExportResult success(const QString& path) { return ExportResult(Success{path}); }
    static ExportResult failure(const QString& text) { return ExportResult(Failure{text}); }

    bool isSuccess() const { return std::holds_alternative<Success>(value_); }
    const QString& path() const { return std::get<Success>(value_).path; }
    const QString& failureText() const { return std::get<Failure>(value_).text; }

    bool operator==(const ExportResult&) const = default;

private:
    struct Success {
        QString path;
        bool operator==(const Success&) const = default;
    };
    struct Failure {
        QString text;
        bool operator==(const Failure&) const = default;
    };

    explicit ExportResult(std::variant<Success, Failure> value)
        : value_(std::move(value)) {}

    std::variant<Success, Failure> value_;
};

} // namespace tessarine
