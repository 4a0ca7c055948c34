"""Compares what debuggers show of Views.cpp with its comments: gdb by xmlattr-gdb.py in the running program and in a
core dump of it, and natvis by xmlattr.natvis, whose expressions gdb evaluates.

  gdb -nx -batch -iex "add-auto-load-safe-path FOLDER_OF_LIBRARY" -x views.py PROGRAM
"""
import os, pathlib, re, sys, tempfile, traceback
import xml.etree.ElementTree

import gdb

ROOT = pathlib.Path(__file__).resolve().parents[2]
NATVIS = {"n": "http://schemas.microsoft.com/vstudio/debugger/natvis/2010"}
COMMENTED = re.compile(r"^\w[^;=(]*?(\w+)(?:\s=\s|\()[^;]*; +// (.*)$", re.M)
LISTED = re.compile(r"^XMLATTR_PUBLIC_VALUE\((.*)\)$")
EXPRESSION = re.compile(r"\{([^{}]+?)(?:,([a-z]+|X))?\}")
problems = []


def expect(what, shown, expected):
    if shown != expected:
        problems.append("%s is shown as\n  %s\nand not as\n  %s" % (what, shown, expected))


# What natvis shows, as Visual Studio evaluates it


class Natvis:
    def __init__(self, path):
        self.types, self.used = [], set()
        for node in xml.etree.ElementTree.parse(path).getroot().findall("n:Type", NATVIS):
            names = [node.get("Name")] + [other.get("Name") for other in node.findall("n:AlternativeType", NATVIS)]
            strings = [(text.get("Condition"), text.text) for text in node.findall("n:DisplayString", NATVIS)]
            items = [item.text for part in ("n:Expand//*", "n:SmartPointer") for item in node.iterfind(part, NATVIS)]
            items = [item for item in items if item.strip()]
            for name in names:
                self.types.append((re.compile(re.escape(name).replace(r"\*", "(.*)")), name, strings, items))

    def find(self, value_type):
        """The views of the class or of the first of its bases that has any."""
        while value_type.code == gdb.TYPE_CODE_STRUCT:
            for pattern, name, strings, items in self.types:
                if pattern.fullmatch(re.sub(", ", ",", value_type.name)):
                    return value_type, name, strings, items
            bases = [field.type for field in value_type.fields() if field.is_base_class]
            if not bases:
                break
            value_type = bases[0].strip_typedefs()
        return None

    def show(self, value):
        value_type = value.type.strip_typedefs().unqualified()
        if (value_type.name or "").startswith("std::"):
            if "basic_string" in value_type.name:
                return quoted(value["_M_dataplus"]["_M_p"], int(value["_M_string_length"]))
            first, end = value["_M_impl"]["_M_start"], value["_M_impl"]["_M_finish"]
            return "{%s}" % ", ".join(self.show(first[index]) for index in range(int(end - first)))
        found = self.find(value_type)
        if not found:
            return str(int(value)) if value_type.code != gdb.TYPE_CODE_STRUCT else "no view of " + value_type.name
        value_type, name, strings, items = found
        value = value.cast(value_type)
        if name not in self.used:
            self.used.add(name)
            for expression in [condition for condition, _ in strings if condition] + items:
                evaluate(value, expression)
            for _, text in strings:
                for expression, _ in EXPRESSION.findall(text):
                    if expression != "*object" or int(value["object"]):
                        evaluate(value, expression)
        text = next(text for condition, text in strings if not condition or int(evaluate(value, condition)))
        return EXPRESSION.sub(lambda match: self.format(evaluate(value, match[1]), match[2]), text)

    def format(self, value, specifier):
        if specifier == "g":
            return "%.7g" % float(value)
        if specifier == "X":
            return "%x" % int(value)
        if specifier == "en":
            names = {field.enumval: field.name for field in value.type.strip_typedefs().fields()}
            return names.get(int(value), str(int(value))).rpartition("::")[2]
        return self.show(value)


def all_members(value_type):
    for field in value_type.fields():
        if field.is_base_class:
            yield from all_members(field.type.strip_typedefs())
        elif field.name:
            yield field.name


def evaluate(value, expression):
    names = set(all_members(value.type))
    gdb.set_convenience_variable("shown", value.address)
    expression = re.sub(r"\$T(\d)", lambda match: "(%s)" % value.type.template_argument(int(match[1]) - 1), expression)
    expression = re.sub(r"(?<![\w.:>$])([A-Za-z_]\w*)(?![\w:(])",
                        lambda match: "$shown->" + match[1] if match[1] in names else match[1], expression)
    result = gdb.parse_and_eval(re.sub(r"\bthis\b", "$shown", expression))
    if result.type.code == gdb.TYPE_CODE_STRUCT and expression.startswith("*$shown->"):
        result = result.cast(result.dynamic_type)
    return result


def quoted(start, length):
    text = gdb.selected_inferior().read_memory(int(start), 2 * length).tobytes().decode("utf-16-le")
    return '"%s"' % "".join(c if c.isprintable() else "\\u%04x" % ord(c) for c in text)


# The checks


def commented():
    """The values of Views.cpp and their comments."""
    return COMMENTED.findall((ROOT / "tests/debugger/Views.cpp").read_text())


def check_commented(where):
    for name, expected in commented():
        shown = gdb.execute("output " + name, to_string=True)
        expect(name + where, re.sub(r"^\(.*\) @0x[0-9a-f]+: ", "", shown), expected.split(" | ")[0])


def check_every_type(natvis):
    every = gdb.parse_and_eval("everyAttribute")
    lines = (ROOT / "xmlattr/ValueTypes.inc").read_text().splitlines()
    listed = {"line%d" % number: match[1] for number, line in enumerate(lines, 1) if (match := LISTED.match(line))}
    expect("the list of types", sorted(field.name for field in every.type.fields()), sorted(listed))
    for field, name in listed.items():
        shown = every[field].format_string()
        value_type = every[field]["stored"]["value"].type.strip_typedefs()
        # Where a number has no keyword, it has no enumerator either, or is Unset.
        keyword = r'(".*" = \w+|Unset|\d+)' if value_type.code == gdb.TYPE_CODE_ENUM else "[^{]+"
        if not re.match(re.escape(name) + " " + keyword + "$", shown):
            problems.append("the attribute of %s is shown as\n  %s" % (name, shown))
        if value_type.code == gdb.TYPE_CODE_STRUCT and not value_type.name.startswith("std::"):
            if not natvis.find(value_type):
                problems.append("xmlattr.natvis has no view of " + name)


def check_natvis(natvis):
    for name, comment in commented():
        value = gdb.parse_and_eval(name)
        if value.type.code == gdb.TYPE_CODE_REF:
            value = value.referenced_value()
        expected = comment.split(" | ")[-1]
        if value.type.name.startswith("Xml::TXmlAttribute"):
            if expected == comment:  # without the name of the value type
                expected = re.sub(r"^\S+( of \d+ =)? ", "", expected)
            value = value["stored"]["value"]
        shown = natvis.format(value, "en" if value.type.strip_typedefs().code == gdb.TYPE_CODE_ENUM else None)
        expect("with natvis, " + name, shown, expected)
    for unused in sorted({name for _, name, _, _ in natvis.types} - natvis.used):
        problems.append("no value of Views.cpp uses the view %s of xmlattr.natvis" % unused)


def check_broken():
    for name in ("url", "color", "list"):
        shown = gdb.execute("output broken." + name, to_string=True)
        if "Python" in shown or "0x10" not in shown:
            problems.append("the broken %s is shown as\n  %s" % (name, shown))


def check():
    gdb.execute("break main")
    try:
        gdb.execute("run", to_string=True)
    except gdb.error as error:  # where no process may trace another
        print("skipped: gdb runs no program here: %s" % error)
        sys.stdout.flush()
        gdb.execute("quit 0")
    natvis = Natvis(ROOT / "debugger/xmlattr.natvis")
    check_commented("")
    check_every_type(natvis)
    check_natvis(natvis)
    check_broken()
    with tempfile.TemporaryDirectory() as folder:
        core = os.path.join(folder, "core")
        gdb.execute("generate-core-file " + core, to_string=True)
        gdb.execute("kill", to_string=True)
        gdb.execute("core-file " + core, to_string=True)
        check_commented(" in a core dump")


try:
    check()
except Exception:
    traceback.print_exc()
    problems.append("the views cannot be checked")
if len(commented()) < 80:
    problems.append("the comments of Views.cpp are not read")
for problem in problems:
    print(problem)
sys.stdout.flush()
gdb.execute("quit %d" % bool(problems))
