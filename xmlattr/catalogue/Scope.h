// Where a row of the catalogue holds: the words of its column `scope`.
#pragma once

namespace Xml {

struct Scope {
    bool isInherited;
    bool isPresentation; // stands in a style attribute too
};

inline constexpr Scope Local{false, false}, Inherited{true, false}, Presentation{false, true},
    InheritedPresentation{true, true};

} // namespace Xml
