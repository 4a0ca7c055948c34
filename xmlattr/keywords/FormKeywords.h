// Keywords of form controls, scripts, bookmarks and review markup.
#pragma once

#include "xmlattr/keywords/KeywordTable.h"

namespace Xml {

// The kind of a form control.
enum class FormControlType : std::int32_t {
    Checkbox = 0,
    Text = 1,
    Button = 2,
    RadioButton = 3,
    Submit = 4,
    Unset = 5,
    Signature = 6
};
template <> struct Keywords<FormControlType> {
    using enum FormControlType;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<FormControlType> rows[] = {
        {u"checkbox", Checkbox},       {u"text", Text},     {u"button", Button},
        {u"radiobutton", RadioButton}, {u"submit", Submit}, {u"signature", Signature},
    };
};

// The look of a form control.
enum class FormControlStyle : std::int32_t { Default = 0, Flat = 1 };
template <> struct Keywords<FormControlStyle> {
    using enum FormControlStyle;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<FormControlStyle> rows[] = {{u"default", Default}, {u"flat", Flat}};
    static constexpr std::u16string_view unknownPrints = u"default";
};

// The mark of a checked box.
enum class FormCheckStyle : std::int32_t { Check = 0, Circle = 1, Cross = 2, Diamond = 3, Square = 4, Star = 5 };
template <> struct Keywords<FormCheckStyle> {
    using enum FormCheckStyle;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<FormCheckStyle> rows[] = {{u"check", Check},     {u"circle", Circle}, {u"cross", Cross},
                                                          {u"diamond", Diamond}, {u"square", Square}, {u"star", Star}};
    static constexpr std::u16string_view unknownPrints = u"check";
};

// What a form control does.
enum class FormActionType : std::int32_t { Unset = 0, Url = 1, JavaScript = 2 };
template <> struct Keywords<FormActionType> {
    using enum FormActionType;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<FormActionType> rows[] = {{u"url", Url}, {u"javascript", JavaScript}};
    static constexpr bool printsEmpty = true;
};

// The event on which a form control acts.
enum class FormTriggerAction : std::int32_t {
    Unset = 0,
    OnMouseUp = 1,
    OnMouseDown = 2,
    OnMouseEnter = 3,
    OnMouseExit = 4,
    OnFocus = 5,
    OnBlur = 6
};
template <> struct Keywords<FormTriggerAction> {
    using enum FormTriggerAction;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<FormTriggerAction> rows[] = {
        {u"OnMouseUp", OnMouseUp},     {u"OnMouseDown", OnMouseDown}, {u"OnMouseEnter", OnMouseEnter},
        {u"OnMouseExit", OnMouseExit}, {u"OnFocus", OnFocus},         {u"OnBlur", OnBlur},
    };
    static constexpr bool printsEmpty = true;
};

// The output for which a script is kept.
enum class XMLATTR_API JavaScriptType : std::int32_t { All = 0, Pdf = 1, Html = 2 };
template <> struct Keywords<JavaScriptType> {
    using enum JavaScriptType;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<JavaScriptType> rows[] = {{u"all", All}, {u"pdf", Pdf}, {u"html", Html}};
    static constexpr std::u16string_view unknownPrints = u"all";
};

// starting-state of XSL-FO.
enum class XMLATTR_API BookmarkStartingState : std::int32_t { Show = 0, Hide = 1 };
template <> struct Keywords<BookmarkStartingState> {
    using enum BookmarkStartingState;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<BookmarkStartingState> rows[] = {{u"show", Show}, {u"hide", Hide}};
};

// The kind of a change under review.
enum class MarkupType : std::int32_t { Insert = 0, Delete = 1, FormatText = 2, FormatNumber = 3 };
template <> struct Keywords<MarkupType> {
    using enum MarkupType;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<MarkupType> rows[] = {
        {u"insert", Insert}, {u"delete", Delete}, {u"format-text", FormatText}, {u"format-number", FormatNumber}};
    static constexpr bool printsEmpty = true;
};

// What a password protects.
enum class XMLATTR_API ProtectionObject : std::int32_t { Document = 0, PdfOutput = 1, WordMlOutput = 2 };
template <> struct Keywords<ProtectionObject> {
    using enum ProtectionObject;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<ProtectionObject> rows[] = {
        {u"document", Document}, {u"pdf-output", PdfOutput}, {u"wordml-output", WordMlOutput}};
};

// Whether an annotation belongs to the page or to the sheet.
enum class XMLATTR_API PageAnnotationContext : std::int32_t { Page = 0, Sheet = 1 };
template <> struct Keywords<PageAnnotationContext> {
    using enum PageAnnotationContext;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<PageAnnotationContext> rows[] = {{u"page", Page}, {u"sheet", Sheet}};
    static constexpr std::u16string_view unknownPrints = u"page";
};

} // namespace Xml
