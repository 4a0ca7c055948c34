// Documents that nobody should write: each ends in a message or well, in bounded time.
#include "CheckDocument.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

namespace Command {
namespace {

using namespace std::string_view_literals;

constexpr std::string_view opening = "<block xmlns='http://www.w3.org/1999/XSL/Format'";

TEST(BadDocuments, EndAtEveryByte) {
    for (char const* const name : {"/letter.fo", "/drawing.svg"}) {
        std::ifstream file(std::string(XMLATTR_SAMPLES) + name, std::ios::binary);
        std::string const document(std::istreambuf_iterator<char>(file), {});
        std::string_view const text = std::string_view(document).substr(0, document.find_last_not_of(" \r\n") + 1);
        ASSERT_EQ(checkDocument(text).failure, "") << name;
        for (std::size_t size = 0; size < text.size(); ++size)
            ASSERT_TRUE(checkDocument(text.substr(0, size)).failure.starts_with("malformed: "))
                << name << " cut at " << size;
    }
}

TEST(BadDocuments, HoldBytesThatAreNoCharacters) {
    for (std::string_view const bytes :
         {"\0"sv, "\x01"sv, "\xFF"sv, "\xC0\x80"sv, "\xED\xA0\x80"sv, "\xF4\x90\x80\x80"sv, "\xE2\x82"sv})
        for (std::string_view const end : {" span='"sv, "><!--"sv, ">"sv, " "sv})
            EXPECT_TRUE(
                checkDocument(std::string(opening).append(end).append(bytes)).failure.starts_with("malformed: "))
                << end << " and byte " << int{static_cast<unsigned char>(bytes[0])};
}

TEST(BadDocuments, HaveManyAttributes) {
    constexpr int count = 200'000;
    std::string document(opening);
    for (int i = 0; i < count; ++i) document.append(" a").append(std::to_string(i)).append("=''");
    Outcome const outcome = checkDocument(document + " span='x'/>");
    EXPECT_EQ(outcome.failure, "");
    EXPECT_EQ(outcome.counts.unknown, count);
    EXPECT_EQ(outcome.last.column, document.size() + 2);
}

TEST(BadDocuments, HaveALongText) {
    std::string const text(33 << 20, 'x'); // no tag may be this long, and a text may
    for (std::string_view const end : {" span='"sv, "><!--"sv, "><?"sv, " "sv})
        EXPECT_EQ(checkDocument(std::string(opening).append(end).append(text)).failure,
                  "limit: a tag or comment of more than 32 MiB")
            << end;
    EXPECT_EQ(checkDocument(std::string(opening).append(">").append(text).append("</block>")).failure, "");
}

TEST(BadDocuments, AreReadUpToALimit) {
    auto const nested = [](std::size_t depth) {
        std::string document;
        for (std::size_t i = 0; i < depth; ++i) document += "<a>";
        for (std::size_t i = 0; i < depth; ++i) document += "</a>";
        return document;
    };
    EXPECT_EQ(checkDocument(nested(10'000)).failure, "");
    EXPECT_EQ(checkDocument(nested(10'001)).failure, "limit: elements nest more than 10000 deep");

    auto const expanded = [](std::size_t times) {
        std::string document = "<!DOCTYPE a [<!ENTITY e '" + std::string(8 << 10, ' ') + "'>]><a>";
        for (std::size_t i = 0; i < times; ++i) document += "&e;";
        return checkDocument(document + "</a>").failure;
    };
    EXPECT_EQ(expanded(126), "") << "a little less than 1 MiB";
    EXPECT_EQ(expanded(129), "limit: entities expand to more than 100 times the size of the file");

    auto const defaulted = [](std::size_t times) {
        std::string document = "<!DOCTYPE a [<!ATTLIST b c CDATA '" + std::string(8 << 10, 'c') + "'>]><a>";
        for (std::size_t i = 0; i < times; ++i) document += "<b/>";
        return checkDocument(document + "</a>").failure;
    };
    EXPECT_EQ(defaulted(127), "") << "a little less than 1 MiB";
    EXPECT_EQ(defaulted(128), "limit: defaults of attributes expand to more than 100 times the size of the file");

    auto const drawn = [](std::size_t length) {
        std::string const path = "M" + std::string(length - 4, ' ') + "0 0";
        return checkDocument("<svg xmlns='http://www.w3.org/2000/svg'><path d='" + path + "'/></svg>").counts;
    };
    EXPECT_EQ(drawn(4 << 20).read, 1u);
    EXPECT_EQ(drawn((4 << 20) + 1).tooLong, 1u);

    auto const texts = [](std::size_t length) {
        return checkDocument("<s:template xmlns:s='http://www.w3.org/1999/XSL/Transform' version='1.0'>"
                             "<block xmlns='http://www.w3.org/1999/XSL/Format'><s:attribute name='span'><s:text>" +
                             std::string(length, 'x') + "</s:text></s:attribute></block></s:template>")
            .counts;
    };
    EXPECT_EQ(texts(64 << 10).refused, 1u);
    EXPECT_EQ(texts((64 << 10) + 1).refused, 0u);
}

} // namespace
} // namespace Command
