#pragma once

namespace platform {

/// Where a cell takes fonts, colours and images from. Each kit of controls has styles of its own.
class CellStyle {
public:
    virtual ~CellStyle() = default;
};

} // namespace platform
