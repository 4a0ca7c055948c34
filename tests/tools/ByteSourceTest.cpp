// Compressed documents and the encodings that the parser lacks.
#include "bytes/GzipPacker.h"
#include "bytes/GzipSource.h"
#include "bytes/TranscodedSource.h"
#include "xml/XmlReader.h"

#include <gtest/gtest.h>

#ifdef XMLATTR_HAS_ZLIB
#include <zlib.h>
#endif

namespace Command {
namespace {

using namespace std::string_literals;

// The place of each attribute "x", or why the document was not read.
std::string placesIn(std::string_view document) {
    class Recorder final : public XmlHandler {
    public:
        void startElement(XmlElement const& element, Tag& tag) override {
            for (std::size_t i = 0; i < element.attributes.size(); ++i) {
                if (element.attributes[i].name != "x") continue;
                Place const place = tag.raw().attribute(i);
                all += std::to_string(place.line) + ":" + std::to_string(place.column) + "=" +
                       std::string(element.attributes[i].value) + " ";
            }
        }
        std::string all;
    } recorder;
    MemorySource source(document);
    if (auto const failure = readXml(source, recorder))
        return recorder.all + std::string(failure->id) + ": " + failure->message;
    return recorder.all;
}

[[maybe_unused]] std::string readAll(ByteSource& source, std::size_t blockSize = 1000) {
    std::string all, block(blockSize, '\0');
    while (std::size_t const count = source.read(block)) all.append(block, 0, count);
    return all;
}

#ifdef XMLATTR_HAS_ZLIB
std::string gzip(std::string const& text) {
    z_stream stream{};
    deflateInit2(&stream, 6, Z_DEFLATED, 15 + 16, 8, Z_DEFAULT_STRATEGY);
    std::string packed(deflateBound(&stream, text.size()) + 32, '\0');
    std::string copy = text;
    stream.next_in = reinterpret_cast<Bytef*>(copy.data());
    stream.avail_in = static_cast<uInt>(copy.size());
    stream.next_out = reinterpret_cast<Bytef*>(packed.data());
    stream.avail_out = static_cast<uInt>(packed.size());
    deflate(&stream, Z_FINISH);
    packed.resize(stream.total_out);
    deflateEnd(&stream);
    return packed;
}

TEST(GzipSource, ExpandsDocuments) {
    std::string const start = "<svg>\n<g  x='1'/>", end = "<g x='2'/>\n</svg>";
    EXPECT_EQ(placesIn(gzip(start + end)), "2:5=1 2:15=2 ");
    EXPECT_EQ(placesIn(gzip(start) + gzip("") + gzip(end)), "2:5=1 2:15=2 ") << "members";
    EXPECT_EQ(placesIn(gzip(start + end) + "\0\0\0rest"s), "2:5=1 2:15=2 ") << "padding";
    std::string wide = "\xFF\xFE";
    for (char const c : start + end) wide += {c, '\0'};
    EXPECT_EQ(placesIn(gzip(wide)), "2:5=1 2:15=2 ") << "UTF-16 in it";
    EXPECT_EQ(placesIn(gzip("<a><b></a>")), "malformed: no well-formed XML: mismatched tag");

    std::string large;
    for (int i = 0; i < 300'000; ++i) large += std::to_string(i * 7919LL % 10'007);
    std::string const packed = gzip(large.substr(0, 1000)) + gzip(large.substr(1000));
    for (std::size_t const size : {std::size_t{1}, std::size_t{4096}, std::size_t{1} << 20}) {
        MemorySource source(packed);
        GzipSource expanded(source);
        EXPECT_EQ(readAll(expanded, size), large) << size;
        EXPECT_FALSE(expanded.failure());
    }
}

TEST(GzipPacker, IsReadAgain) {
    std::string packed, text;
    GzipPacker packer([&](std::string_view bytes) { packed += bytes; });
    for (int i = 0; i < 100'000; ++i) {
        std::string const piece = std::to_string(i * 7919LL % 10'007);
        packer.add(piece);
        text += piece;
    }
    packer.add({}, true);
    MemorySource source(packed);
    GzipSource expanded(source);
    EXPECT_EQ(readAll(expanded), text);
    EXPECT_FALSE(expanded.failure());
}

TEST(GzipSource, RefusesWhatIsDamaged) {
    std::string const packed = gzip("<svg>" + std::string(1000, ' ') + "<g x='1'/></svg>");
    for (std::size_t size = 2; size < packed.size(); ++size)
        EXPECT_NE(placesIn(packed.substr(0, size)).find("malformed: the compressed file ends too early"),
                  std::string::npos)
            << size;
    std::string const small = gzip("<a x='1'/>"); // all of which is there when its end is found to be missing
    EXPECT_EQ(placesIn(small.substr(0, small.size() - 1)), "1:4=1 malformed: the compressed file ends too early");
    for (std::size_t at = 10; at < packed.size(); ++at) {
        std::string damaged = packed;
        damaged[at] = static_cast<char>(damaged[at] ^ 0x55);
        EXPECT_NE(placesIn(damaged).find("malformed: "), std::string::npos) << at;
    }
    EXPECT_TRUE(placesIn("\x1F\x8B"s + std::string(100, 'x')).starts_with("malformed: no valid gzip: "));
}

TEST(GzipSource, EndsWhereAFileExpandsTooFar) {
    std::string const blanks = gzip(std::string((16 << 20) + 1, ' ')), few = gzip(std::string(16 << 20, ' '));
    EXPECT_EQ(placesIn(blanks), "limit: the compressed file expands to more than is read");
    EXPECT_EQ(placesIn(few), "malformed: no element in the file");
    for (std::uint64_t const most : {999u, 1000u}) {
        MemorySource source(few);
        std::string const thousand = gzip(std::string(1000, ' '));
        MemorySource packed(thousand);
        GzipSource expanded(packed, {.bytes = most});
        readAll(expanded);
        EXPECT_EQ(expanded.failure().has_value(), most < 1000);
    }
}
#else
TEST(GzipSource, SaysThatItCannotExpand) {
    EXPECT_TRUE(placesIn("\x1F\x8B\x08").starts_with("unreadable: the file is compressed"));
}
#endif

#ifdef XMLATTR_HAS_ICONV
TEST(TranscodedSource, KeepsPlacesInCodePoints) {
    struct Row {
        char const* encoding;
        std::string bytes; // of two characters
        char const* utf8;
    };
    for (Row const& row :
         {Row{"ISO-8859-2", "\xB1\xE6", "\u0105\u0107"}, Row{"ISO-8859-15", "\xA4\xBD", "\u20AC\u0153"},
          Row{"ANSI_X3.4-1968", "ab", "ab"}, Row{"KOI8-R", "\xC1\xC2", "\u0430\u0431"},
          Row{"windows-1251", "\xE0\xE1", "\u0430\u0431"}, Row{"Windows-1250", "\x8A\x9A", "\u0160\u0161"},
          Row{"Shift_JIS", "\x83\x65\x93\xFA", "\u30C6\u65E5"}, Row{"EUC-JP", "\xC6\xFC\xCB\xDC", "\u65E5\u672C"},
          Row{"GB18030", "\xC4\xE3\x81\x30\x81\x30", "\u4F60\u0080"},
          Row{"Big5", "\xA4\xA4\xA4\xE5", "\u4E2D\u6587"}}) {
        std::string document = "<?xml version='1.0' encoding = \""s + row.encoding + "\"?>\n<a b='" + row.bytes +
                               "' x='" + row.bytes + "'>";
        EXPECT_EQ(placesIn(document + "</a>"), "2:11="s + row.utf8 + " ") << row.encoding;
        // A character is cut between two blocks wherever they begin.
        for (int i = 0; i < 40'000; ++i) document += row.bytes;
        for (std::string const& shift : {""s, "-"s, "--"s})
            EXPECT_EQ(placesIn(document + shift + "\n<c x=''/></a>"), "2:11="s + row.utf8 + " 3:4= ") << row.encoding;
    }
}

TEST(TranscodedSource, TellsUtf32ByItsForm) {
    for (bool const isBig : {false, true}) {
        for (std::string const& mark : {""s, "\uFEFF"s}) {
            std::string bytes;
            auto const add = [&](unsigned c) {
                for (unsigned i = 0; i < 4; ++i) bytes += static_cast<char>(c >> 8 * (isBig ? 3 - i : i) & 0xFF);
            };
            if (!mark.empty()) add(0xFEFF);
            for (char const c : "<?xml version='1.0' encoding='UTF-32'?><a x=''/>"s) add(static_cast<unsigned char>(c));
            EXPECT_EQ(placesIn(bytes), "1:43= ") << isBig << mark.size();
        }
    }
}

TEST(TranscodedSource, RefusesBytesOfAnotherEncoding) {
    std::string const declaration = "<?xml version='1.0' encoding='EUC-JP'?>";
    std::string const message = "encoding: the file is not in EUC-JP, the encoding that it declares";
    EXPECT_EQ(placesIn(declaration + "<a x=''><b x='\xFF'/></a>"), "1:43= " + message);
    EXPECT_EQ(placesIn(declaration + "<a x=''/>\xC6"), "1:43= " + message) << "half a character at the end";
    MemorySource source(declaration);
    EXPECT_TRUE(TranscodedSource::open(source, "EUC-JP"));
    EXPECT_FALSE(TranscodedSource::open(source, "EUC-JP//IGNORE"));
}
#endif

TEST(TranscodedSource, TakesNoNameButThatOfAnEncoding) {
    struct Row {
        std::string start;
        char const* encoding;
    };
    for (Row const& row :
         {Row{"", ""}, Row{"<a encoding='KOI8-R'/>", ""}, Row{"<?xml version='1.0'?><a encoding='KOI8-R'/>", ""},
          Row{"<?xml version='1.0' encoding='Utf-8'?>", ""}, Row{"<?xml encoding='Windows-1252'?>", ""},
          Row{"<?xml encoding\n=\t'KOI8-R'x", "KOI8-R"}, Row{"<?xml encoding='KOI8-R?>", ""},
          Row{"<?xml encoding=KOI8?>", ""}})
        EXPECT_EQ(foreignEncoding(row.start), row.encoding) << row.start;
    for (std::string const& name : {"Volapuk-8"s, "KOI8-R//IGNORE"s, "a&lt;b"s, std::string(900, 'x')})
        EXPECT_TRUE(placesIn("<?xml version='1.0' encoding='" + name + "'?><a/>").find(": ") != std::string::npos)
            << name;
}

} // namespace
} // namespace Command
