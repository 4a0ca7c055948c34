#include "xml/XmlReader.h"

#include "bytes/GzipSource.h"
#include "bytes/TranscodedSource.h"
#include "text/Text.h"
#include "xml/Encoding.h"
#include "xml/TextValues.h"

#include "xmlattr/catalogue/text/Words.h"

#include <algorithm>
#include <array>
#include <exception>
#include <memory>
#include <random>
#include <set>
#include <utility>
#include <vector>

#define XML_DTD // declares the limits on entities
#include <expat.h>

namespace Command {

namespace {

constexpr int maxDepth = 10'000;
constexpr std::int64_t maxTag = 32 << 20;
constexpr std::size_t longestDeclaration = 1 << 10; // of XML, where it names an encoding
constexpr char separator = '\x1F';                  // between a namespace and a name; no document can contain it

// What entities, and what defaults of attributes, may expand to: times the file, and from how many bytes on.
constexpr int amplification = 100;
constexpr int amplificationMattersFrom = 1 << 20;

constexpr std::string_view readEncodings = "UTF-8, UTF-16, ISO-8859-1, US-ASCII and windows-1252 always are";

struct SingleByteEncoding {
    std::string_view name;
    ByteEncoding encoding;
};

constexpr SingleByteEncoding singleByteEncodings[] = {{"iso-8859-1", ByteEncoding::Latin1},
                                                      {"us-ascii", ByteEncoding::Latin1},
                                                      {"windows-1252", ByteEncoding::Windows1252},
                                                      {"cp1252", ByteEncoding::Windows1252}};

// UTF-8 when the name is none of theirs.
ByteEncoding singleByteEncoding(std::string_view name) {
    for (SingleByteEncoding const& row : singleByteEncodings)
        if (Xml::equalsNoCase(name, row.name)) return row.encoding;
    return ByteEncoding::Utf8;
}

// Reads one document.
class Reader final : XmlHandler::Tag {
public:
    // The parser is in the state in which it was made.
    Reader(XML_Parser parser, XmlHandler& handler, std::set<std::string>& knownEntities)
        : handler(handler), parser(parser), knownEntities(knownEntities) {
        XML_SetUserData(parser, this);
        XML_SetElementHandler(parser, onStart, onEnd);
        XML_SetXmlDeclHandler(parser, onDeclaration);
        XML_SetUnknownEncodingHandler(parser, onUnknownEncoding, this);
        XML_SetNamespaceDeclHandler(parser, onNamespace, onNamespaceEnd);
        XML_SetNotStandaloneHandler(parser, onUnreadDeclarations);
        XML_SetSkippedEntityHandler(parser, onSkippedEntity);
        XML_SetExternalEntityRefHandler(parser, onExternalEntity);
        XML_SetEntityDeclHandler(parser, onEntity);
        XML_SetParamEntityParsing(parser, XML_PARAM_ENTITY_PARSING_NEVER);
        XML_SetBillionLaughsAttackProtectionMaximumAmplification(parser, amplification);
        XML_SetBillionLaughsAttackProtectionActivationThreshold(parser, amplificationMattersFrom);
    }

    // In the encoding that it declares.
    std::optional<XmlFailure> read(PeekedSource& source) {
        std::string const foreign = foreignEncoding(source.peek(longestDeclaration));
        if (foreign.empty()) return readOwn(source);
        std::unique_ptr<TranscodedSource> const transcoded = TranscodedSource::open(source, foreign);
        if (!transcoded) return readOwn(source); // the parser finds the name again and refuses it
        XML_SetEncoding(parser, "UTF-8");
        isTranscoded = true;
        return readOwn(*transcoded);
    }

    // In bytes, as far as it was read.
    std::int64_t size() const { return total; }

private:
    // In an encoding of the parser's own.
    std::optional<XmlFailure> readOwn(ByteSource& source) {
        for (int size = blockSize;;) {
            void* const buffer = XML_GetBuffer(parser, size);
            if (!buffer) return failed("limit", "out of memory");
            std::span const block(static_cast<char*>(buffer), static_cast<std::size_t>(size));
            auto const [count, isAtEnd] = source.fill(block);
            if (total == 0) noteMark({block.data(), count});
            total += static_cast<std::int64_t>(count);

            XML_Status const status = XML_ParseBuffer(parser, static_cast<int>(count), isAtEnd);
            if (thrown) std::rethrow_exception(thrown);
            if (failure) return failure;
            if (status != XML_STATUS_OK) return parserFailure();
            if (source.failure()) return sourceFailure(*source.failure());
            if (isAtEnd) return std::nullopt;

            // A tag is read anew with each block until it is whole: blocks that grow with it keep
            // the time linear.
            std::int64_t const pending = total - XML_GetCurrentByteIndex(parser);
            if (pending > maxTag) return failed("limit", "a tag or comment of more than 32 MiB");
            size = static_cast<int>(std::clamp<std::int64_t>(pending, blockSize, maxTag - pending + blockSize));
        }
    }

    static void XMLCALL onStart(void* self, XML_Char const* name, XML_Char const** attributes) {
        Reader& reader = *static_cast<Reader*>(self);
        reader.guarded([&] { reader.start(name, attributes); });
    }

    static void XMLCALL onEnd(void* self, XML_Char const*) {
        Reader& reader = *static_cast<Reader*>(self);
        reader.guarded([&] { reader.end(); });
    }

    static void XMLCALL onText(void* self, XML_Char const* text, int length) {
        Reader& reader = *static_cast<Reader*>(self);
        reader.guarded([&] { reader.takeText({text, static_cast<std::size_t>(length)}); });
    }

    static void XMLCALL onNamespace(void* self, XML_Char const* prefix, XML_Char const* space) {
        Reader& reader = *static_cast<Reader*>(self);
        reader.guarded([&] { reader.namespaces.begin(prefix ? prefix : "", space ? space : ""); });
    }

    static void XMLCALL onNamespaceEnd(void* self, XML_Char const* prefix) {
        Reader& reader = *static_cast<Reader*>(self);
        reader.guarded([&] { reader.namespaces.end(prefix ? prefix : ""); });
    }

    static void XMLCALL onSkippedEntity(void* self, XML_Char const*, int isParameter) {
        if (!isParameter) static_cast<Reader*>(self)->missContent();
    }

    static int XMLCALL onExternalEntity(XML_Parser parser, XML_Char const*, XML_Char const*, XML_Char const*,
                                        XML_Char const*) {
        static_cast<Reader*>(XML_GetUserData(parser))->missContent();
        return XML_STATUS_OK;
    }

    static void XMLCALL onDeclaration(void* self, XML_Char const*, XML_Char const* encoding, int) {
        auto& known = static_cast<Reader*>(self)->encoding;
        bool const isTranscoded = static_cast<Reader*>(self)->isTranscoded;
        if (encoding && known == ByteEncoding::Utf8 && !isTranscoded) known = singleByteEncoding(encoding);
    }

    // Called for an external DTD and for a parameter entity: the parser then takes an entity that it
    // does not know for one that is declared there, and leaves it out.
    static int XMLCALL onUnreadDeclarations(void* self) {
        static_cast<Reader*>(self)->hasUnreadDeclarations = true;
        return XML_STATUS_OK;
    }

    // What refers to others is known as little as they are.
    static void XMLCALL onEntity(void* self, XML_Char const* name, int isParameter, XML_Char const* value, int length,
                                 XML_Char const*, XML_Char const*, XML_Char const*, XML_Char const*) {
        if (isParameter || !value) return;
        std::string_view const text(value, static_cast<std::size_t>(length));
        Reader& reader = *static_cast<Reader*>(self);
        if (text.find('&') == std::string_view::npos) reader.guarded([&] { reader.knownEntities.emplace(name); });
    }

    static int XMLCALL onUnknownEncoding(void* self, XML_Char const* name, XML_Encoding* info) {
        if (singleByteEncoding(name) != ByteEncoding::Windows1252) {
            Reader& reader = *static_cast<Reader*>(self);
            reader.guarded([&] { reader.unknownEncoding = name; });
            return XML_STATUS_ERROR;
        }
        for (int i = 0; i < 256; ++i) info->map[i] = windows1252(static_cast<unsigned char>(i));
        info->data = nullptr;
        info->convert = nullptr;
        info->release = nullptr;
        return XML_STATUS_OK;
    }

    // What the first bytes tell of the encoding. The parser counts a byte order mark as a column.
    void noteMark(std::string_view bytes) {
        using namespace std::string_view_literals;
        bool const isMarkedBig = bytes.starts_with("\xFE\xFF"sv), isMarkedLittle = bytes.starts_with("\xFF\xFE"sv);
        if (isMarkedBig || bytes.starts_with("\0<"sv)) encoding = ByteEncoding::Utf16Big;
        if (isMarkedLittle || bytes.starts_with("<\0"sv)) encoding = ByteEncoding::Utf16Little;
        if (isMarkedBig || isMarkedLittle || bytes.starts_with("\xEF\xBB\xBF"sv)) markColumns = 1;
    }

    void start(XML_Char const* name, XML_Char const** texts) {
        if (depth >= maxDepth) {
            failure = failed("limit", "elements nest more than 10000 deep");
            XML_StopParser(parser, XML_FALSE);
            return;
        }
        XmlElement element{.space = {}, .name = name, .attributes = {}, .depth = depth++, .namespaces = namespaces};
        split(element.space, element.name);
        attributes.clear();
        XML_Char const** const defaults = texts + XML_GetSpecifiedAttributeCount(parser);
        for (; texts[0]; texts += 2) {
            XmlAttributeText& attribute = attributes.emplace_back();
            attribute.name = texts[0];
            attribute.value = texts[1];
            split(attribute.space, attribute.name);
            if (texts >= defaults) defaulted += std::ssize(attribute.name) + std::ssize(attribute.value);
        }
        if (defaulted > amplificationMattersFrom && defaulted / amplification > total) {
            failure = failed("limit", "defaults of attributes expand to more than 100 times the size of the file");
            XML_StopParser(parser, XML_FALSE);
            return;
        }
        element.attributes = attributes;
        renew();
        handler.startElement(element, *this);
        if (content)
            content->startElement(element);
        else if (handler.wantsText(element))
            startContent();
        if (content) contentEnd = byteOffset() + byteCount();
    }

    void end() {
        if (content) endInContent();
        if (content) contentEnd = byteOffset() + byteCount();
        --depth;
    }

    // No exception passes through the parser, which may call a few times more after it was stopped.
    template <class Call> void guarded(Call call) {
        if (failure || thrown) return;
        try {
            call();
        } catch (...) {
            thrown = std::current_exception();
            XML_StopParser(parser, XML_FALSE);
        }
    }

    void startContent() {
        content.emplace();
        hasAllContent = true;
        XML_SetCharacterDataHandler(parser, onText);
    }

    // A text that is written in another way stands in other bytes, or elsewhere.
    void takeText(std::string_view text) {
        std::uint64_t const length = encodedLength(decode(text, ByteEncoding::Utf8), encoding);
        bool const isPlain = byteOffset() == contentEnd && byteCount() == length;
        content->text(text, here(), isPlain ? std::optional(contentEnd) : std::nullopt);
        if (isPlain) contentEnd += length;
    }

    void endInContent() {
        if (content->endElement(here())) return;
        TextValues const ended = *std::exchange(content, std::nullopt);
        XML_SetCharacterDataHandler(parser, nullptr);
        for (TextValues::Value const& value : ended.values()) {
            std::optional<BytePlace> bytes;
            if (value.bytes) bytes = BytePlace{*value.bytes, encoding};
            handler.text({value.text, value.place, hasAllContent, bytes});
        }
    }

    void missContent() {
        hasAllContent = false;
        guarded([&] { handler.missingContent(); });
    }

    static void split(std::string_view& space, std::string_view& name) {
        std::size_t const at = name.find(separator);
        if (at == std::string_view::npos) return;
        space = name.substr(0, at);
        name.remove_prefix(at + 1);
    }

    TagSource source() override {
        int const count = XML_GetCurrentByteCount(parser); // 0 inside of an entity
        std::string_view const rest = bytesFromHere();
        bool const isHere = count >= 0 && static_cast<std::size_t>(count) <= rest.size();
        return {isHere ? rest.substr(0, static_cast<std::size_t>(count)) : std::string_view(),
                {byteOffset(), encoding},
                here(),
                hasUnreadDeclarations ? &knownEntities : nullptr};
    }

    // Of the event at hand.
    std::uint64_t byteOffset() const { return static_cast<std::uint64_t>(XML_GetCurrentByteIndex(parser)); }
    std::uint64_t byteCount() const { return static_cast<std::uint64_t>(XML_GetCurrentByteCount(parser)); }

    // What the parser has of the file from the event at hand on.
    std::string_view bytesFromHere() const {
        int offset = 0, size = 0;
        char const* const context = XML_GetInputContext(parser, &offset, &size);
        if (!context || offset < 0 || offset > size) return {};
        return std::string_view(context, static_cast<std::size_t>(size)).substr(static_cast<std::size_t>(offset));
    }

    Place here() const {
        std::uint64_t const line = XML_GetCurrentLineNumber(parser);
        std::uint64_t const before = XML_GetCurrentColumnNumber(parser);
        return {line, before + 1 - (line == 1 ? std::min(before, markColumns) : 0)};
    }

    std::optional<XmlFailure> sourceFailure(SourceFailure const& source) const {
        if (source.id == "unreadable") return XmlFailure{source.id, source.message, std::nullopt};
        return failed(source.id, source.message);
    }

    // The prefix of the tag at hand that no declaration has; after an error the tag has no end.
    std::string unboundPrefix() const {
        for (std::string const& prefix : RawTag(decode(bytesFromHere(), encoding), here()).prefixes())
            if (prefix != "xml" && namespaces.of(prefix).empty()) return prefix;
        return {};
    }

    XmlFailure failed(std::string_view id, std::string message) const { return {id, std::move(message), here()}; }

    XmlFailure parserFailure() const {
        XML_Error const code = XML_GetErrorCode(parser);
        switch (code) {
        case XML_ERROR_UNKNOWN_ENCODING:
        case XML_ERROR_INCORRECT_ENCODING:
            return failed("encoding", unknownEncoding.empty() ? "the file is not in the encoding that it declares"
                                                              : "encoding " + printable(unknownEncoding) +
                                                                    " is not read; " + std::string(readEncodings));
        case XML_ERROR_AMPLIFICATION_LIMIT_BREACH:
            return failed("limit", "entities expand to more than 100 times the size of the file");
        case XML_ERROR_NO_MEMORY: return failed("limit", "more memory than the size of the file explains");
        case XML_ERROR_UNBOUND_PREFIX:
            if (std::string const prefix = unboundPrefix(); !prefix.empty())
                return failed("malformed", "the prefix " + printable(prefix) + " is not declared");
            return failed("malformed", "a prefix is not declared");
        case XML_ERROR_NO_ELEMENTS:
            return failed("malformed", depth > 0 ? "the file ends inside of an element" : "no element in the file");
        case XML_ERROR_UNCLOSED_TOKEN:
        case XML_ERROR_PARTIAL_CHAR:
        case XML_ERROR_UNCLOSED_CDATA_SECTION:
            return failed("malformed", std::string("the file ends too early: ") + XML_ErrorString(code));
        default: return failed("malformed", std::string("no well-formed XML: ") + XML_ErrorString(code));
        }
    }

    XmlHandler& handler;
    XML_Parser parser;
    std::set<std::string>& knownEntities;
    std::int64_t total = 0;     // bytes
    std::int64_t defaulted = 0; // bytes of attributes that the tags do not have
    ByteEncoding encoding = ByteEncoding::Utf8;
    bool isTranscoded = false;
    std::uint64_t markColumns = 0; // on line 1
    std::string unknownEncoding;
    int depth = 0;
    std::vector<XmlAttributeText> attributes;
    bool hasUnreadDeclarations = false;
    Namespaces namespaces;
    std::optional<TextValues> content; // of the element whose text is wanted
    std::uint64_t contentEnd = 0;      // of the tag or the text before, in such an element
    bool hasAllContent = true;         // false when an entity left something out of it
    std::optional<XmlFailure> failure;
    std::exception_ptr thrown;
};

} // namespace

void XmlHandler::Tag::renew() {
    isRead = false;
    last = {};
}

RawTag& XmlHandler::Tag::raw() {
    if (isRead) return tag;
    isRead = true;
    TagSource const from = source();
    tag = RawTag(decode(from.bytes, from.begin.encoding), from.place);
    return tag;
}

bool XmlHandler::Tag::isWhole(std::size_t attribute) {
    TagSource const from = source();
    if (!from.entities) return true;
    if (last.attribute != attribute) last = {attribute, raw().refersOnlyTo(attribute, *from.entities)};
    return last.isWhole;
}

std::string nameInDocument(std::string_view local, XmlHandler::Tag& tag) {
    std::string name = tag.raw().elementName();
    if (name.empty()) name = local;
    return name;
}

struct XmlReader::State {
    struct Free {
        void operator()(XML_Parser parser) const { XML_ParserFree(parser); }
    };

    using ParserPointer = std::unique_ptr<std::remove_pointer_t<XML_Parser>, Free>;

    ParserPointer parser;              // null when a new one is to be made
    std::array<char, blockSize> start; // of the file
    std::set<std::string> entities;    // of the document, kept until the next: tags may be told on another thread
    // Against documents whose names share their hashes. For each document without one the parser asks the system.
    unsigned long salt = std::random_device()() | 1U;

    std::optional<XmlFailure> read(PeekedSource& source, XmlHandler& handler) {
        // What a large document, or a hostile one, made the parser take is not kept.
        constexpr std::int64_t longestKept = 256 << 10;
        ParserPointer own = std::exchange(parser, nullptr);
        bool const isKept = own && XML_ParserReset(own.get(), nullptr);
        if (!isKept) own.reset(XML_ParserCreateNS(nullptr, separator));
        if (!own) throw std::bad_alloc();
        XML_SetHashSalt(own.get(), salt);
        entities.clear();
        Reader reader(own.get(), handler, entities);
        std::optional<XmlFailure> failure = reader.read(source);
        if (!failure && reader.size() <= longestKept) parser = std::move(own);
        return failure;
    }
};

XmlReader::XmlReader() : state(std::make_unique<State>()) {}

XmlReader::~XmlReader() = default;

std::optional<XmlFailure> XmlReader::read(ByteSource& source, XmlHandler& handler) {
    PeekedSource peeked(source, state->start);
    if (!isGzip(peeked.peek(2))) return state->read(peeked, handler);
    GzipSource expanded(peeked);
    std::array<char, longestDeclaration> start;
    PeekedSource peekedAgain(expanded, start);
    return state->read(peekedAgain, handler);
}

std::optional<XmlFailure> readXml(ByteSource& source, XmlHandler& handler) {
    return XmlReader().read(source, handler);
}

} // namespace Command
