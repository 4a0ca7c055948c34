"""Shows the types of xmlattr in gdb as a person reads them:

  width  = BorderWidth "thick" = 5pt      an attribute: its value type and its value
  length = 12pt                           a value alone
  side   = Break "even-page" = EvenPage   a keyword, and its enumerator
  wrap   = TextAlign AlignmentString "."  quotes are around texts of documents, other words are enumerators

Only members are read and nothing is called, so that it works in core dumps too. A value that is not there, or whose
members have other names than here, is shown as gdb shows it without this file.

gdb loads the file by itself where it stands beside the library as libxmlattr.so.VERSION-gdb.py, or below the folder
auto-load of gdb; elsewhere: source xmlattr-gdb.py
"""
import gdb


def xmlattr_printers():
    """All that follows, in one function: gdb runs every script in the same namespace."""
    import datetime
    import re
    import struct

    # Texts and numbers

    def quoted(pointer, length):
        """A text of UTF-16, as far as `set print elements` lets it be shown."""
        shown = min(length, gdb.parameter("print elements") or length)
        units = gdb.selected_inferior().read_memory(int(pointer), 2 * shown).tobytes() if shown else b""
        text = units.decode("utf-16-le", "replace")
        text = "".join(c if c.isprintable() else "\\u%04x" % ord(c) for c in text)
        return '"%s"' % text + ("..." if shown < length else "")

    def string(value):
        """A Core::String, which holds a std::u16string of libstdc++."""
        units = value["units"]
        return quoted(units["_M_dataplus"]["_M_p"], int(units["_M_string_length"]))

    def shortest(value):
        """The shortest text that reads back as the number, which has single precision where a text was read."""
        number = float(value)
        code = "f" if struct.unpack("f", struct.pack("f", number))[0] == number else "d"
        texts = ("%.*g" % (digits, number) for digits in range(6, 18))
        return next(text for text in texts if struct.pack(code, float(text)) == struct.pack(code, number))

    def percentage(fraction):
        return "%.7g%%" % (float(fraction) * 100)

    def boolean(value):
        return int(value) != 0

    def enumerator(value):
        """The name without its scope, or the number where no enumerator has it."""
        names = {field.enumval: field.name for field in value.type.strip_typedefs().fields()}
        name = names.get(int(value))
        return name.rpartition("::")[2] if name else str(int(value))

    # Values by type: functions from a value to its text. A class that has none is shown as its first base.

    def length(value):
        unit = enumerator(value["unit"])
        if unit == "Percent":
            return percentage(value["size"])
        return shortest(value["size"]) + ("" if unit == "UserUnit" else unit.lower())

    def measure(value):
        return percentage(value["percent"]) if enumerator(value["kind"]) == "KindPercent" else length(value["length"])

    def tagged_measure(value):
        tag, measured = value["tag"], value.type.template_argument(1)
        if int(tag) == int(measured):
            return show(value["measure"])
        return "auto" if tag.type.strip_typedefs().code == gdb.TYPE_CODE_BOOL else enumerator(tag)

    def font_measure(value):
        form = enumerator(value["type"])
        return {"Relative": lambda: enumerator(value["relative"]), "Absolute": lambda: show(value["absolute"])}.get(
            form, lambda: form)()

    def word_of(value_type, fits):
        """The first word of the type's own table whose value fits, quoted; None also where there is no such table."""
        table = gdb.lookup_global_symbol("Xml::AttributeTraits<%s>::rows" % value_type)
        rows = table.value() if table else None
        for row in range(rows.type.range()[1] + 1) if table else ():
            if fits(rows[row]["value"]):
                word = rows[row]["word"]
                return quoted(word["_M_str"], int(word["_M_len"]))
        return None

    # The tables of words, packed: what an enumeration prints if it prints other words than it reads, and what it reads.
    KEYWORD_TABLES = ["Core::detail::Words<Xml::Keywords<%s>::printRows, Core::detail::PackedWords>::packed"] + [
        "Core::detail::Words<Xml::Keywords<%%s>::rows, Core::detail::Indexed<(Core::Case)%d, %s>::Packed>::packed" % kind
        for kind in ((0, "false"), (0, "true"), (1, "false"))]

    def keyword(value):
        """The first word of the enumerator, quoted; None also where the library does not describe its tables."""
        for name in KEYWORD_TABLES:
            table = gdb.lookup_global_symbol(name % value.type.strip_typedefs().name)
            if not table:
                continue
            packed = table.value()
            for row in range(packed["values"].type.range()[1] + 1):
                if int(packed["values"][row]) == int(value):
                    word = packed["words"][row]
                    return quoted(packed["letters"][int(word["start"])].address, int(word["lengthAndNext"]) & 0xFFFF)
        return None

    def named_enumerator(value):
        word = keyword(value)
        return (word + " = " if word else "") + enumerator(value)

    def border_width(value):
        word = word_of("Xml::BorderWidth", lambda row: row["unit"] == value["unit"] and row["size"] == value["size"])
        return (word + " = " if word else "") + length(value)

    def background_position(value):
        def fits(row):
            return row["kind"] == value["kind"] and row["percent"] == value["percent"]

        word = word_of("Xml::BackgroundPosition", fits) if enumerator(value["kind"]) == "KindPercent" else None
        return (word + " = " if word else "") + measure(value)

    def nullable(value):
        return "null" if boolean(value["null"]) else show(as_base(value))

    def content_length(value):
        mode = enumerator(value["mode"])
        return measure(value["value"]) if mode == "LengthOrPercent" else mode

    def background_size(value):
        word = enumerator(value["type"])
        return measure(value) if word == "LengthOrPercent" else word

    def alignment_adjust(value):
        return enumerator(value["keyword"]) if boolean(value["keywordHeld"]) else show(value["measure"])

    def rectangle(value):
        return "rect(%s)" % ", ".join(shortest(value[side]) + "px" for side in ("top", "right", "bottom", "left"))

    def call(name, arguments):
        return "%s(%s)" % (name, ",".join(arguments))

    def rgb_color(value):
        return call("rgb", (str(int(value[part])) for part in "rgb"))

    def cmyk_color(value):
        return call("cmyk", (shortest(value[part]) for part in "cmyk"))

    def icc_color(value):
        fall_back = [str(int(value["fallBack" + part])) for part in "RGB"]
        components = [shortest(value["components"][index]) for index in range(int(value["count"]))]
        return call("rgb-icc", fall_back + [show(value["colorSpace"])] + components)

    def spot_color(value):
        arguments = [string(value["colorName"]), shortest(value["tint"])]
        return call("spot-color", arguments + ([show(value["function"])] if int(value["function"]["object"]) else []))

    def pointer(value):
        """A SmartPtr: what it points to, as the class that the object has."""
        held = value["object"]
        if int(held) == 0:
            return "null"
        return show(held.cast(held.dynamic_type).dereference())

    def paint(value):
        form = enumerator(value["type"])
        parts = [string(value["url"])] if form == "Url" else []
        if int(value["color"]["object"]) or form == "Color":
            parts.append(show(value["color"]))
        return " ".join(parts) or form

    def aspect_ratio(value):
        bits = int(value["ratio"])
        if bits & 1:
            return "none"
        words = "".join(axis + place for axis, first in (("x", 8), ("Y", 64))
                        for place, factor in (("Min", 1), ("Mid", 2), ("Max", 4)) if bits & first * factor)
        return words + {2: " meet", 4: " slice"}.get(bits & 6, "")

    def decoration(value):
        lines = [name for name, held in (("underline", "underline"), ("overline", "overline"),
                                         ("line-through", "lineThrough")) if boolean(value[held])]
        return ", ".join(lines) or "none"

    def transform(value):
        kind = enumerator(value["type"])
        arguments = {
            "Matrix": lambda: [shortest(value["matrix"][i]) for i in range(6)],
            "Translate": lambda: [inner(value["tx"]), inner(value["ty"])],
            "Scale": lambda: [shortest(value["sx"]), shortest(value["sy"])],
            "Rotate": lambda: [shortest(value["angle"]), inner(value["cx"]), inner(value["cy"])],
            "SkewX": lambda: [shortest(value["skewAngleX"])],
            "SkewY": lambda: [shortest(value["skewAngleY"])],
        }.get(kind, lambda: [])()
        return call(kind[:1].lower() + kind[1:], arguments)

    # The letter of each command and the members that count.
    PATH_COMMANDS = {
        "MoveTo": ("M", "x y"),
        "ClosePath": ("Z", ""),
        "LineTo": ("L", "x y"),
        "HorizontalLineTo": ("H", "x"),
        "VerticalLineTo": ("V", "y"),
        "CurveTo": ("C", "x1 y1 x2 y2 x y"),
        "SmoothCurveTo": ("S", "x2 y2 x y"),
        "QuadraticCurveTo": ("Q", "x1 y1 x y"),
        "SmoothQuadraticCurveTo": ("T", "x y"),
        "ArcTo": ("A", "rx ry xAxisRotation largeArc sweep x y"),
    }

    def path_command(value):
        kind = enumerator(value["kind"].cast(gdb.lookup_type("Xml::PathCommandKinds::PathCommandKind")))
        letter, members = PATH_COMMANDS.get(kind, (kind, ""))
        return " ".join([letter.lower() if boolean(value["relative"]) else letter]
                        + [show(value[member]) for member in members.split()])

    def language(value):
        country = enumerator(value["country"])
        return enumerator(value["language"]) + ("" if country == "None" else ", " + country)

    def form(**members):
        """A keyword, and the member that belongs to it, if any."""

        def text(value):
            keyword = enumerator(value["type"])
            return keyword + (" " + show(value[members[keyword]]) if keyword in members else "")

        return text

    def conditions(value):
        return " and ".join(map(show, elements(value["conditions"]))) or "no condition"

    def axis_source(value):
        name = string(value["name"])
        return call(string(value["fn"]), [name]) if value["fn"]["units"]["_M_string_length"] else name

    def date(value):
        moment = datetime.datetime(1970, 1, 1) + datetime.timedelta(seconds=int(value["seconds"]))
        fraction = int(value["fraction"])
        text = moment.isoformat() + ((".%09d" % fraction).rstrip("0") if fraction else "")
        offset = value["offset"]["_M_payload"]
        if boolean(offset["_M_engaged"]):
            minutes = int(offset["_M_payload"]["_M_value"])
            text += "%s%02d:%02d" % ("-" if minutes < 0 else "+", abs(minutes) // 60, abs(minutes) % 60)
        return text

    def members(separator, names):
        return lambda value: separator.join(show(value[name]) for name in names.split())

    SHOWN = {
        "Core::String": string,
        "Core::DateTimeEx": date,
        "Core::SmartPtr": pointer,
        "Drawing::ImageFilter": form(),
        "Drawing::RectF": rectangle,
        "Drawing::RGBColor": rgb_color,
        "Drawing::CMYKColor": cmyk_color,
        "Drawing::ICCColor": icc_color,
        "Drawing::SpotColor": spot_color,
        "Drawing::ExponentialSpotColorFunction": members(" to ", "startColor endColor"),
        "Drawing::ICCColorSpace": lambda value: string(value["profileName"]),
        "Xml::Length": length,
        "Xml::SLength": length,
        "Xml::SNullableLength": nullable,
        "Xml::DLength": members(" ", "first second"),
        "Xml::MeasureOrPercent": measure,
        "Xml::SNullableLengthOrPercent": nullable,
        "Xml::FloatOrPercent": lambda value: shortest(value["value"]),
        "Xml::TaggedMeasure": tagged_measure,
        "Xml::FontMeasure": font_measure,
        "Xml::BorderWidth": border_width,
        "Xml::BackgroundPosition": background_position,
        "Xml::BackgroundSize": background_size,
        "Xml::ContentLength": content_length,
        "Xml::AlignmentAdjust": alignment_adjust,
        "Xml::TextAlign": form(AlignmentString="text"),
        "Xml::SColor": paint,
        "Xml::SNullableColor": nullable,
        "Xml::BoxShadow": members(" ", "dx dy blurRadius color"),
        "Xml::STextShadow": members(" ", "dx dy blurRadius color"),
        "Xml::STextDecoration": decoration,
        "Xml::SPreserveAspectRatio": aspect_ratio,
        "Xml::Transform": transform,
        "Xml::PathDataCommand": path_command,
        "Xml::Point": members(",", "x y"),
        "Xml::ViewBox": members(" ", "x y width height"),
        "Xml::Language": language,
        "Xml::InitialPageNumber": form(Number="number", MultipleOf="multiple"),
        "Xml::InitialSheetNumber": form(Number="number"),
        "Xml::ForcePageCount": form(MultipleOf="count", EndOnMultipleOf="count"),
        "Xml::AxisUnits": form(Numeric="number"),
        "Xml::MaxDataPoints": form(Count="count"),
        "Xml::DisplayCondition": conditions,
        "Xml::DisplayCondition::Condition": members(" ", "op argument"),
        "Xml::TPRule": form(FindKeyword="keyword"),
        "Xml::Url": lambda value: string(value["url"]),
        "Xml::AxisSource": axis_source,
        "Xml::Value": form(Number="number", Date="date", String="string"),
        "Xml::TabStop": members(" ", "position type pattern"),
    }

    # Any value

    def bare_name(value_type):
        """The name of a class without its template arguments."""
        return (value_type.name or "").partition("<")[0]

    def bases(value_type):
        return [field for field in value_type.fields() if field.is_base_class]

    def as_base(value):
        return value[bases(value.type.strip_typedefs())[0]]

    def known(value):
        """The value as the first of its classes that is in the table, or None."""
        value = value.cast(value.type.strip_typedefs().unqualified())
        while value.type.code == gdb.TYPE_CODE_STRUCT:
            if bare_name(value.type) in SHOWN:
                return value
            if not bases(value.type):
                break
            value = as_base(value)
        return None

    def show(value):
        code = value.type.strip_typedefs().code
        if code == gdb.TYPE_CODE_ENUM:
            return enumerator(value)
        if code == gdb.TYPE_CODE_FLT:
            return shortest(value)
        if code == gdb.TYPE_CODE_BOOL:
            return str(int(value))
        found = known(value)
        return SHOWN[bare_name(found.type)](found) if found else value.format_string()

    def size(vector):
        """That of a std::vector of libstdc++."""
        return int(vector["_M_impl"]["_M_finish"] - vector["_M_impl"]["_M_start"])

    def elements(vector):
        return (vector["_M_impl"]["_M_start"][index] for index in range(size(vector)))

    def is_vector(value_type):
        return bare_name(value_type) in ("std::vector", "std::__debug::vector")

    def inner(attribute):
        return show(attribute["stored"]["value"])

    def name_of(value_type):
        """The value type as `xmlattr types` names it."""
        value_type = value_type.strip_typedefs()
        if is_vector(value_type):
            return "Core::Vector<%s>" % name_of(value_type.template_argument(0))
        if bare_name(value_type) == "Core::SmartPtr":
            return "SmartPtr<%s>" % value_type.template_argument(0).name
        return re.sub("^Xml::", "", value_type.name)

    class Shown:
        """Shows a value, or, where it is not to be read, what gdb shows by itself."""

        def __init__(self, value, text):
            self.value, self.text = value, text

        def to_string(self):
            try:
                return self.text(self.value)
            except (gdb.error, ArithmeticError, AttributeError, LookupError, StopIteration, TypeError, ValueError):
                return self.value.format_string(raw=True)

    class ShownList(Shown):
        """An attribute that holds a list, element by element."""

        def children(self):
            index = 0
            try:
                for index, element in enumerate(elements(self.value["stored"]["value"])):
                    element.fetch_lazy()
                    yield "[%d]" % index, element
            except gdb.error as error:
                yield "[%d]" % index, "<error: %s>" % error

        def display_hint(self):
            return "array"

    def attribute(value):
        value_type, stored = value.type.template_argument(0), value["stored"]["value"]
        if is_vector(value_type.strip_typedefs()):
            return "%s of %d" % (name_of(value_type), size(stored))
        text = named_enumerator if stored.type.strip_typedefs().code == gdb.TYPE_CODE_ENUM else show
        return "%s %s" % (name_of(value_type), text(stored))

    class Printers:
        name = "xmlattr"
        enabled = True
        subprinters = None

        def __call__(self, value):
            value_type = value.type.strip_typedefs().unqualified()
            if value_type.code != gdb.TYPE_CODE_STRUCT:
                return None
            if bare_name(value_type) == "Xml::TXmlAttribute" and value_type.fields():
                value = value.cast(value_type)
                shape = ShownList if is_vector(value_type.template_argument(0).strip_typedefs()) else Shown
                return shape(value, attribute)
            found = known(value)
            return Shown(found, SHOWN[bare_name(found.type)]) if found else None

    return Printers()


# For the library that this file stands beside; for all where it was sourced by hand.
def show_xmlattr(target):
    others = [printers for printers in target.pretty_printers if getattr(printers, "name", "") != "xmlattr"]
    target.pretty_printers = [xmlattr_printers()] + others


show_xmlattr(gdb.current_objfile() or gdb)
