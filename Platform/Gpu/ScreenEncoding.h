#pragma once

#include <QByteArray>

namespace platform {

/// How a drawable's numbers mean colours.
enum class ColorSpace { extendedLinearSRGB, extendedLinearDisplayP3 };

// GLSL 3.30 with what turns a function's linear light into a picture for the screen as it is stored: a target
// of linear numbers and a pass over it would cost a processor half as much again as the frame. Sources begin
// with a line "#version 330 core", and name nothing "platform...".

/// The triangles upside down, so that the upper row of the picture is the first that is read.
QByteArray uprightVertexSource(const QByteArray& source);

/// `source` writes linear light of `space` to `out vec4 color`, and sees pixels where OpenGL has them. What
/// is stored is encoded sRGB, blue first; what lies outside the screen's range is clipped, what lies between
/// two steps of 8 bits is dithered.
QByteArray encodedFragmentSource(const QByteArray& source, ColorSpace space);

} // namespace platform
