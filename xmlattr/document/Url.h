// A reference to a resource.
#pragma once

#include "xmlattr/attributes/AttributeTraits.h"

#include <utility>

namespace Xml {

// "url(" a reference ")", exact in case, with white space and quotes around the reference dropped;
// a text that does not begin with "url" is the reference as it stands. Nothing in it is decoded.
class XMLATTR_API Url {
public:
    Url() = default;
    Url(Core::String newUrl) : url(std::move(newUrl)) {}

    Core::String const& getUrl() const { return url; }

    bool operator==(Url const&) const = default;

private:
    Core::String url;
};

template <> struct XMLATTR_API AttributeTraits<Url> {
    // False for "url" and more without a "("; then `value` is untouched.
    // Intended: "url" alone is a reference, one without its ")" is empty, and in a list of
    // references the last ")" ends the one that is read.
    static bool parse(Url& value, std::u16string_view text);
    // "url(...)", without quotes.
    static Core::String print(Url const& value);
    static constexpr Description describe{.forms = {u"url(REFERENCE)", u"a reference as it stands"},
                                          .examples = {u"url('a b')", u"a.png"},
                                          .readsAnyText = true};
};

} // namespace Xml
