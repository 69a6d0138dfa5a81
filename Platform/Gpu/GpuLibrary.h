#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>

#include <optional>
#include <string>
#include <vector>

namespace platform {

class Bundle;

/// One shader function of a library: GLSL 3.30 with a first line "#version 330 core". A fragment function
/// writes linear light to `out vec4 color`.
struct GpuFunction {
    QString name;
    QByteArray source;
    /// Names of the shader's uniforms, in the order of the indices that the encoder's `setFragmentBytes`
    /// takes.
    std::vector<std::string> bytes;
};

/// The shaders of a bundle: `Shaders/Shaders.json` lists the functions, each in a GLSL 3.30 file of its own.
class GpuLibrary {
public:
    /// Throws `GpuError` if the bundle has no readable library.
    explicit GpuLibrary(const Bundle& bundle);

    /// Nothing if the library has no such function or its file cannot be read.
    std::optional<GpuFunction> function(const QString& name) const;

private:
    struct Entry {
        QString file;
        std::vector<std::string> bytes;
    };

    QHash<QString, Entry> m_entries;
};

} // namespace platform
