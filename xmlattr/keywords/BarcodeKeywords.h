// Keywords of barcodes.
#pragma once

#include "xmlattr/keywords/KeywordTable.h"

#include "xmlattr/core/SetMacrosAside.h"

namespace Xml {

// The symbology of a barcode.
enum class XMLATTR_API BarcodeType : std::int32_t {
    Auto = 0,
    UpcE = 1,
    Ean8 = 2,
    UpcA = 3,
    Ean13 = 4,
    DataMatrix = 5,
    Code3of9 = 6,
    Code2of5 = 7,
    Postnet = 8,
    Planet = 9,
    Code128 = 10,
    Code128Raw = 11,
    Code128Ucc = 12,
    Omr = 13,
    Pdf417 = 14,
    Aztec = 15,
    Maxicode = 16,
    QrBarcode = 17,
    IntelligentMail = 18
};
template <> struct Keywords<BarcodeType> {
    using enum BarcodeType;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<BarcodeType> rows[] = {
        {u"Auto", Auto},
        {u"UPC-E", UpcE},
        {u"EAN-8", Ean8},
        {u"UPC-A", UpcA},
        {u"EAN-13", Ean13},
        {u"DataMatrix", DataMatrix},
        {u"3of9", Code3of9},
        {u"2of5", Code2of5},
        {u"Postnet", Postnet},
        {u"Planet", Planet},
        {u"Code128", Code128},
        {u"Code128Raw", Code128Raw},
        {u"Code128UCC", Code128Ucc},
        {u"OMR", Omr},
        {u"Pdf417", Pdf417},
        {u"Aztec", Aztec},
        {u"Maxicode", Maxicode},
        {u"QRBarcode", QrBarcode},
        {u"IntelligentMail", IntelligentMail},
    };
};

// The code set in which a Code 128 symbol starts.
enum class XMLATTR_API Code128CodeSet : std::int32_t { CodeSetA = 0, CodeSetB = 1, CodeSetC = 2 };
template <> struct Keywords<Code128CodeSet> {
    using enum Code128CodeSet;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<Code128CodeSet> rows[] = {
        {u"CodeSetA", CodeSetA}, {u"CodeSetB", CodeSetB}, {u"CodeSetC", CodeSetC}};
    static constexpr bool printsEmpty = true;
};

// The encodation of a Data Matrix symbol.
enum class XMLATTR_API DMEncoding : std::int32_t { Ascii = 0, C40 = 1, Text = 2, Base256 = 3, None = 4, Auto = 5 };
template <> struct Keywords<DMEncoding> {
    using enum DMEncoding;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<DMEncoding> rows[] = {{u"ASCII", Ascii},     {u"C40", C40},   {u"TEXT", Text},
                                                      {u"BASE256", Base256}, {u"NONE", None}, {u"AUTO", Auto}};
    static constexpr bool printsEmpty = true;
};

// The size of a Data Matrix symbol, rows by columns, in the order of ISO/IEC 16022: the squares, then the rectangles.
enum class XMLATTR_API DMFormat : std::int32_t {
    Auto = -1,
    C10X10 = 0,
    C12X12 = 1,
    C14X14 = 2,
    C16X16 = 3,
    C18X18 = 4,
    C20X20 = 5,
    C22X22 = 6,
    C24X24 = 7,
    C26X26 = 8,
    C32X32 = 9,
    C36X36 = 10,
    C40X40 = 11,
    C44X44 = 12,
    C48X48 = 13,
    C52X52 = 14,
    C64X64 = 15,
    C72X72 = 16,
    C80X80 = 17,
    C88X88 = 18,
    C96X96 = 19,
    C104X104 = 20,
    C120X120 = 21,
    C132X132 = 22,
    C144X144 = 23,
    C8X18 = 24,
    C8X32 = 25,
    C12X26 = 26,
    C12X36 = 27,
    C16X36 = 28,
    C16X48 = 29
};
template <> struct Keywords<DMFormat> {
    using enum DMFormat;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<DMFormat> rows[] = {
        {u"AUTO", Auto},         {u"C10X10", C10X10},     {u"C12X12", C12X12},     {u"C14X14", C14X14},
        {u"C16X16", C16X16},     {u"C18X18", C18X18},     {u"C20X20", C20X20},     {u"C22X22", C22X22},
        {u"C24X24", C24X24},     {u"C26X26", C26X26},     {u"C32X32", C32X32},     {u"C36X36", C36X36},
        {u"C40X40", C40X40},     {u"C44X44", C44X44},     {u"C48X48", C48X48},     {u"C52X52", C52X52},
        {u"C64X64", C64X64},     {u"C72X72", C72X72},     {u"C80X80", C80X80},     {u"C88X88", C88X88},
        {u"C96X96", C96X96},     {u"C104X104", C104X104}, {u"C120X120", C120X120}, {u"C132X132", C132X132},
        {u"C144X144", C144X144}, {u"C8X18", C8X18},       {u"C8X32", C8X32},       {u"C12X26", C12X26},
        {u"C12X36", C12X36},     {u"C16X36", C16X36},     {u"C16X48", C16X48},
    };
    static constexpr bool printsEmpty = true;
};

// The mode of a MaxiCode symbol, numbered as in ISO/IEC 16023; modes 0 and 1 have no keyword.
enum class XMLATTR_API MaxicodeModes : std::int32_t {
    UsCarrier = 2,
    InternationalCarrier = 3,
    StandardSymbol = 4,
    SecureSymbol = 5,
    ReaderProgram = 6
};
template <> struct Keywords<MaxicodeModes> {
    using enum MaxicodeModes;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<MaxicodeModes> rows[] = {
        {u"USCarrier", UsCarrier},           {u"InternationalCarrier", InternationalCarrier},
        {u"StandardSymbol", StandardSymbol}, {u"SecureSymbol", SecureSymbol},
        {u"FullECCSymbol", SecureSymbol},    {u"ReaderProgram", ReaderProgram},
    };
    static constexpr bool printsEmpty = true;
};

// The error-correction level of a QR Code symbol.
enum class QRECL : std::int32_t { Unset = 0, LevelL = 1, LevelM = 2, LevelQ = 3, LevelH = 4 };
template <> struct Keywords<QRECL> {
    using enum QRECL;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<QRECL> rows[] = {
        {u"LEVEL-L", LevelL}, {u"LEVEL-M", LevelM}, {u"LEVEL-Q", LevelQ}, {u"LEVEL-H", LevelH}};
    static constexpr bool printsEmpty = true;
};

// How the text of a barcode becomes bytes.
enum class XMLATTR_API TextEncoding : std::int32_t { Latin1 = 0, Utf8 = 1 };
template <> struct Keywords<TextEncoding> {
    using enum TextEncoding;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<TextEncoding> rows[] = {{u"LATIN1", Latin1}, {u"UTF8", Utf8}};
    static constexpr bool printsEmpty = true;
};

} // namespace Xml

#include "xmlattr/core/PutMacrosBack.h"
