#pragma once

#include <QString>

#include <exception>

namespace vantor {

/// Why a renderer could not be made.
class RendererError : public std::exception {
public:
    enum Code { noValidDevice };

    explicit RendererError(Code code) : m_code(code) {}

    Code code() const { return m_code; }

    /// For people, in their language.
    QString localizedDescription() const;

    const char* what() const noexcept override { return "noValidDevice"; }

private:
    Code m_code;
};

} // namespace vantor
