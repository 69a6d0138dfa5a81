#pragma once

namespace chorale {

/// Lets assistive technology see parameter views with their values. Once is enough.
void installParameterAccessibility();

} // namespace chorale
