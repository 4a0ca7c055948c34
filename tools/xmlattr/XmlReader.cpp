#include "XmlReader.h"

#include "Text.h"

#include "xmlattr/core/Text.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <exception>
#include <memory>
#include <vector>

#define XML_DTD // declares the limits on entities
#include <expat.h>

namespace Command {

namespace {

constexpr int maxDepth = 10'000;
constexpr std::int64_t maxTag = 32 << 20;
constexpr int blockSize = 64 << 10;
constexpr char separator = '\x1F'; // between a namespace and a name; no document can contain it

constexpr std::string_view readEncodings = "UTF-8, UTF-16, ISO-8859-1, US-ASCII and windows-1252 are";

bool isNamed(char const* encoding, std::string_view name) {
    return std::equal(encoding, encoding + std::strlen(encoding), name.begin(), name.end(), [](char a, char b) {
        return Core::toLower(static_cast<char16_t>(static_cast<unsigned char>(a))) == static_cast<char16_t>(b);
    });
}

// The characters that windows-1252 has where ISO-8859-1 has control characters.
constexpr std::array<int, 32> windows1252 = {0x20AC, -1,     0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                             0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, -1,     0x017D, -1,
                                             -1,     0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                             0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, -1,     0x017E, 0x0178};

class Reader final : XmlHandler::Tag {
public:
    explicit Reader(XmlHandler& handler) : handler(handler), parser(XML_ParserCreateNS(nullptr, separator)) {
        if (!parser) throw std::bad_alloc();
        XML_SetUserData(parser.get(), this);
        XML_SetElementHandler(parser.get(), onStart, onEnd);
        XML_SetXmlDeclHandler(parser.get(), onDeclaration);
        XML_SetUnknownEncodingHandler(parser.get(), onUnknownEncoding, this);
        XML_SetParamEntityParsing(parser.get(), XML_PARAM_ENTITY_PARSING_NEVER);
        XML_SetBillionLaughsAttackProtectionMaximumAmplification(parser.get(), 100.0f);
        XML_SetBillionLaughsAttackProtectionActivationThreshold(parser.get(), 1 << 20);
    }

    std::optional<XmlFailure> read(std::FILE* file) {
        std::int64_t total = 0;
        for (int size = blockSize;;) {
            void* const buffer = XML_GetBuffer(parser.get(), size);
            if (!buffer) return failed("limit", "out of memory");
            std::size_t const count = std::fread(buffer, 1, static_cast<std::size_t>(size), file);
            if (std::ferror(file)) return XmlFailure{"unreadable", std::strerror(errno), std::nullopt};
            if (total == 0) noteUtf16(static_cast<unsigned char const*>(buffer), count);
            total += static_cast<std::int64_t>(count);

            bool const isLast = count < static_cast<std::size_t>(size);
            XML_Status const status = XML_ParseBuffer(parser.get(), static_cast<int>(count), isLast);
            if (thrown) std::rethrow_exception(thrown);
            if (failure) return failure;
            if (status != XML_STATUS_OK) return parserFailure();
            if (isLast) return std::nullopt;

            // A tag is read anew with each block until it is whole: blocks that grow with it keep
            // the time linear.
            std::int64_t const pending = total - XML_GetCurrentByteIndex(parser.get());
            if (pending > maxTag) return failed("limit", "a tag or comment of more than 32 MiB");
            size = static_cast<int>(std::clamp<std::int64_t>(pending, blockSize, maxTag - pending + blockSize));
        }
    }

private:
    static void XMLCALL onStart(void* self, XML_Char const* name, XML_Char const** attributes) {
        static_cast<Reader*>(self)->start(name, attributes);
    }

    static void XMLCALL onEnd(void* self, XML_Char const*) { --static_cast<Reader*>(self)->depth; }

    static void XMLCALL onDeclaration(void* self, XML_Char const*, XML_Char const* encoding, int) {
        if (!encoding || static_cast<Reader*>(self)->encoding != ByteEncoding::Utf8) return;
        for (std::string_view const name : {"iso-8859-1", "us-ascii", "windows-1252", "cp1252"})
            if (isNamed(encoding, name)) static_cast<Reader*>(self)->encoding = ByteEncoding::SingleByte;
    }

    static int XMLCALL onUnknownEncoding(void* self, XML_Char const* name, XML_Encoding* info) {
        if (!isNamed(name, "windows-1252") && !isNamed(name, "cp1252")) {
            static_cast<Reader*>(self)->unknownEncoding = name;
            return XML_STATUS_ERROR;
        }
        for (int i = 0; i < 256; ++i) info->map[i] = i;
        std::copy(windows1252.begin(), windows1252.end(), info->map + 0x80);
        info->data = nullptr;
        info->convert = nullptr;
        info->release = nullptr;
        return XML_STATUS_OK;
    }

    void noteUtf16(unsigned char const* bytes, std::size_t count) {
        if (count < 2) return;
        int const pair = bytes[0] << 8 | bytes[1];
        if (pair == 0xFEFF || pair == '<') encoding = ByteEncoding::Utf16Big;
        if (pair == 0xFFFE || pair == '<' << 8) encoding = ByteEncoding::Utf16Little;
    }

    void start(XML_Char const* name, XML_Char const** texts) {
        // The parser calls once more after it was stopped inside an empty element.
        if (failure || thrown) return;
        if (depth >= maxDepth) {
            failure = failed("limit", "elements nest more than 10000 deep");
            XML_StopParser(parser.get(), XML_FALSE);
            return;
        }
        XmlElement element{.space = {}, .name = name, .attributes = {}, .depth = depth++};
        split(element.space, element.name);
        attributes.clear();
        for (; texts[0]; texts += 2) {
            XmlAttributeText& attribute = attributes.emplace_back();
            attribute.name = texts[0];
            attribute.value = texts[1];
            split(attribute.space, attribute.name);
        }
        element.attributes = attributes;
        hasTag = false;
        try {
            handler.startElement(element, *this);
        } catch (...) {
            thrown = std::current_exception();
            XML_StopParser(parser.get(), XML_FALSE);
        }
    }

    static void split(std::string_view& space, std::string_view& name) {
        std::size_t const at = name.find(separator);
        if (at == std::string_view::npos) return;
        space = name.substr(0, at);
        name.remove_prefix(at + 1);
    }

    RawTag& raw() override {
        if (hasTag) return tag;
        hasTag = true;
        int offset = 0, size = 0;
        char const* const context = XML_GetInputContext(parser.get(), &offset, &size);
        int const count = XML_GetCurrentByteCount(parser.get()); // 0 inside of an entity
        std::string_view const bytes = context && offset >= 0 && count <= size - offset
                                           ? std::string_view(context + offset, static_cast<std::size_t>(count))
                                           : std::string_view();
        tag = RawTag(decode(bytes, encoding), here());
        return tag;
    }

    Place here() const {
        return {XML_GetCurrentLineNumber(parser.get()), XML_GetCurrentColumnNumber(parser.get()) + 1};
    }

    XmlFailure failed(std::string_view id, std::string message) const { return {id, std::move(message), here()}; }

    XmlFailure parserFailure() const {
        XML_Error const code = XML_GetErrorCode(parser.get());
        switch (code) {
        case XML_ERROR_UNKNOWN_ENCODING:
        case XML_ERROR_INCORRECT_ENCODING:
            return failed("encoding", unknownEncoding.empty() ? "the file is not in the encoding that it declares"
                                                              : "encoding " + shown(unknownEncoding) +
                                                                    " is not read; " + std::string(readEncodings));
        case XML_ERROR_AMPLIFICATION_LIMIT_BREACH:
            return failed("limit", "entities expand to more than 100 times the size of the file");
        case XML_ERROR_NO_MEMORY: return failed("limit", "more memory than the size of the file explains");
        case XML_ERROR_NO_ELEMENTS:
            return failed("malformed", depth > 0 ? "the file ends inside of an element" : "no element in the file");
        case XML_ERROR_UNCLOSED_TOKEN:
        case XML_ERROR_PARTIAL_CHAR:
        case XML_ERROR_UNCLOSED_CDATA_SECTION:
            return failed("malformed", std::string("the file ends too early: ") + XML_ErrorString(code));
        default: return failed("malformed", std::string("no well-formed XML: ") + XML_ErrorString(code));
        }
    }

    struct Free {
        void operator()(XML_Parser parser) const { XML_ParserFree(parser); }
    };

    XmlHandler& handler;
    std::unique_ptr<std::remove_pointer_t<XML_Parser>, Free> parser;
    ByteEncoding encoding = ByteEncoding::Utf8;
    std::string unknownEncoding;
    int depth = 0;
    std::vector<XmlAttributeText> attributes;
    bool hasTag = false;
    RawTag tag;
    std::optional<XmlFailure> failure;
    std::exception_ptr thrown;
};

} // namespace

std::optional<XmlFailure> readXml(std::FILE* file, XmlHandler& handler) {
    return Reader(handler).read(file);
}

} // namespace Command
