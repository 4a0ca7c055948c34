// The pages of the reference.
#pragma once

#include "tools/reference/text/Page.h"
#include "tools/reference/text/SourceComments.h"

#include <vector>

namespace Reference {

// "Not symmetric. (`xmlattr/measures/ContentLength.h`)".
std::string lineOf(Oddity const& oddity);

// The value types, a page for each heading in the list of them.
std::vector<Page> typePages(SourceComments const& comments);
// The file of such a page.
std::string fileOf(Family const& family);

// Constants, colours, languages and units.
std::vector<Page> tablePages();
// The attributes, elements, kinds of values, newer names and newer values of the vocabularies.
std::vector<Page> cataloguePages();
// What looks wrong and is relied on in more than one type.
Page oddityPage(SourceComments const& comments);
// Where to find what.
Page indexPage(SourceComments const& comments, std::vector<Page> const& others);

// All of them, the index first.
std::vector<Page> allPages(SourceComments const& comments);

} // namespace Reference
