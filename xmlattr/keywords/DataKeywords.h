// Keywords of data sources and web services.
#pragma once

#include "xmlattr/core/SqlQueryParamType.h"
#include "xmlattr/core/Variant.h"
#include "xmlattr/keywords/KeywordTable.h"

#include "xmlattr/core/SetMacrosAside.h"

namespace Xml {

// What a database command returns.
enum class XMLATTR_API CommandBehaviorType : std::int32_t {
    Default = 0,
    SingleResult = 1,
    SchemaOnly = 2,
    KeyInfo = 3,
    SingleRow = 4,
    SequentialAccess = 5,
    CloseConnection = 6
};
template <> struct Keywords<CommandBehaviorType> {
    using enum CommandBehaviorType;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<CommandBehaviorType> rows[] = {
        {u"Default", Default},
        {u"SingleResult", SingleResult},
        {u"SchemaOnly", SchemaOnly},
        {u"KeyInfo", KeyInfo},
        {u"SingleRow", SingleRow},
        {u"SequentialAccess", SequentialAccess},
        {u"CloseConnection", CloseConnection},
    };
    static constexpr std::u16string_view unknownPrints = u"SchemaOnly";
};

// Whether several commands run in one transaction.
enum class XMLATTR_API SqlCommandExecType : std::int32_t { Transaction = 0, RunEach = 1 };
template <> struct Keywords<SqlCommandExecType> {
    using enum SqlCommandExecType;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<SqlCommandExecType> rows[] = {{u"Transaction", Transaction}, {u"RunEach", RunEach}};
    static constexpr std::u16string_view unknownPrints = u"Transaction";
};

// The direction of a parameter of a stored procedure.
enum class XMLATTR_API DBParamScope : std::int32_t { In = 0, Out = 1, InOut = 2, Return = 3 };
template <> struct Keywords<DBParamScope> {
    using enum DBParamScope;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<DBParamScope> rows[] = {
        {u"IN", In}, {u"OUT", Out}, {u"INOUT", InOut}, {u"RETURN", Return}};
    static constexpr std::u16string_view unknownPrints = u"IN";
};

// The kind of a parameter of a query.
template <> struct Keywords<Core::IO::SqlQueryParamType> {
    using enum Core::IO::SqlQueryParamType;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<Core::IO::SqlQueryParamType> rows[] = {
        {u"Text", Text}, {u"Numeric", Numeric}, {u"Date", Date}};
    static constexpr std::u16string_view unknownPrints = u"Text";
};

// The type of a value in a data source.
template <> struct Keywords<Core::Variant::VariantType> {
    using enum Core::Variant::VariantType;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<Core::Variant::VariantType> rows[] = {
        {u"NullValue", NullValue},           {u"BoolValue", BoolValue},
        {u"ByteValue", ByteValue},           {u"ShortValue", ShortValue},
        {u"IntegerValue", IntegerValue},     {u"LongValue", LongValue},
        {u"UShortValue", UShortValue},       {u"UIntValue", UIntValue},
        {u"ULongValue", ULongValue},         {u"FloatValue", FloatValue},
        {u"DoubleValue", DoubleValue},       {u"StringValue", StringValue},
        {u"DateTimeValue", DateTimeValue},   {u"DateTimeExValue", DateTimeExValue},
        {u"ByteArrayValue", ByteArrayValue},
    };
    static constexpr std::u16string_view unknownPrints = u"IntegerValue";
};

// The value that is replaced. Intended: "empty-string" and "custom" have other numbers than in ValueCoertionDest.
enum class XMLATTR_API ValueCoertionSource : std::int32_t {
    EmptyNumeric = 0,
    EmptyString = 1,
    EmptyDate = 2,
    Custom = 3
};
template <> struct Keywords<ValueCoertionSource> {
    using enum ValueCoertionSource;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<ValueCoertionSource> rows[] = {
        {u"empty-numeric", EmptyNumeric},
        {u"empty-string", EmptyString},
        {u"empty-date", EmptyDate},
        {u"custom", Custom},
    };
    static constexpr bool unknownThrows = true;
};

// What replaces it.
enum class XMLATTR_API ValueCoertionDest : std::int32_t { Zero = 0, Null = 1, EmptyString = 2, Custom = 3 };
template <> struct Keywords<ValueCoertionDest> {
    using enum ValueCoertionDest;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<ValueCoertionDest> rows[] = {
        {u"zero", Zero}, {u"null", Null}, {u"empty-string", EmptyString}, {u"custom", Custom}};
    static constexpr bool unknownThrows = true;
};

// The encoding of a CSV file.
enum class XMLATTR_API CsvEncodingType : std::int32_t { Auto = 0, Ansi = 1 };
template <> struct Keywords<CsvEncodingType> {
    using enum CsvEncodingType;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<CsvEncodingType> rows[] = {{u"Auto", Auto}, {u"Ansi", Ansi}};
    static constexpr std::u16string_view unknownPrints = u"Auto";
};

// The format of a data document.
enum class XMLATTR_API OrbelDocumentOutputType : std::int32_t {
    Unset = 0,
    Xml = 1,
    Excel = 2,
    Database = 3,
    BiUniverse = 4
};
template <> struct Keywords<OrbelDocumentOutputType> {
    using enum OrbelDocumentOutputType;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<OrbelDocumentOutputType> rows[] = {
        {u"xml", Xml},
        {u"excel", Excel},
        {u"database", Database},
        {u"bi-universe", BiUniverse},
    };
};

// The protocol of a web-service call; the empty text means none.
enum class XMLATTR_API WSProtocol : std::int32_t { None = 0, Soap = 1, Soap12 = 2, HttpGet = 3, HttpPost = 4 };
template <> struct Keywords<WSProtocol> {
    using enum WSProtocol;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<WSProtocol> rows[] = {
        {u"", None}, {u"soap", Soap}, {u"soap12", Soap12}, {u"httpGet", HttpGet}, {u"httpPost", HttpPost}};
    static constexpr bool acceptsEmpty = true;
};

// The binding style of a web-service call; the empty text means none.
enum class XMLATTR_API WSBindingStyle : std::int32_t { None = 0, Rpc = 1, Document = 2 };
template <> struct Keywords<WSBindingStyle> {
    using enum WSBindingStyle;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<WSBindingStyle> rows[] = {{u"", None}, {u"rpc", Rpc}, {u"document", Document}};
    static constexpr bool acceptsEmpty = true;
};

// How a web-service message is encoded; the empty text leaves it open.
enum class XMLATTR_API WSOperationUsage : std::int32_t { None = 0, Literal = 1, Encoded = 2 };
template <> struct Keywords<WSOperationUsage> {
    using enum WSOperationUsage;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<WSOperationUsage> rows[] = {{u"", None}, {u"literal", Literal}, {u"encoded", Encoded}};
    static constexpr bool acceptsEmpty = true;
};

// The format from which a document was converted.
enum class XMLATTR_API OriginalInputFormat : std::int32_t { Fo = 0, Inx = 1, Html = 2, Docx = 3, WordMl = 4 };
template <> struct Keywords<OriginalInputFormat> {
    using enum OriginalInputFormat;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<OriginalInputFormat> rows[] = {
        {u"FO", Fo}, {u"INX", Inx}, {u"HTML", Html}, {u"DOCX", Docx}, {u"WORDML", WordMl}};
    // Intended: Fo prints "XLSFO" and an out-of-range value "XSLFO"; neither is read back.
    static constexpr KeywordRow<OriginalInputFormat> printRows[] = {
        {u"XLSFO", Fo}, {u"INX", Inx}, {u"HTML", Html}, {u"DOCX", Docx}, {u"WORDML", WordMl}};
    static constexpr std::u16string_view unknownPrints = u"XSLFO";
};

} // namespace Xml

#include "xmlattr/core/PutMacrosBack.h"
