#include <xmlattr/catalogue/Catalogue.h>

int main() {
    auto const* const row = Xml::Catalogue::find(Xml::Vocabulary::Fo, "block", "space-before");
    return row && !row->valueType.empty() ? 0 : 1;
}
