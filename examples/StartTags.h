// The start tags of a well-formed document, found well enough for an example: a program has an XML reader instead.
#pragma once

#include <fstream>
#include <iterator>
#include <regex>
#include <string>

// Calls see(element, attribute, text) for each attribute of the formatting objects of a document.
template <class See> bool eachAttribute(char const* file, See see) {
    std::ifstream in(file, std::ios::binary);
    if (!in) return false;
    std::string const document{std::istreambuf_iterator<char>(in), {}};
    static std::regex const tag(R"(<fo:([\w-]+)((?:\s+[\w:.-]+="[^"]*")*))");
    static std::regex const pair(R"(([\w:.-]+)="([^"]*)\")");
    using Found = std::sregex_iterator;
    for (Found element(document.begin(), document.end(), tag); element != Found(); ++element) {
        std::string const attributes = (*element)[2];
        for (Found found(attributes.begin(), attributes.end(), pair); found != Found(); ++found)
            if (!(*found)[1].str().starts_with("xmlns")) see((*element)[1].str(), (*found)[1].str(), (*found)[2].str());
    }
    return true;
}
