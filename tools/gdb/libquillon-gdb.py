"""gdb printers for the values and pointers of Quillon Runtime.

Installed where gdb loads it with the library; in other places: source libquillon-gdb.py

    (gdb) print total
    $1 = -12.50
    (gdb) print order
    $2 = COrder "order", 2 references

They read the fields of the classes only and call nothing in the program, so that they work on core files too.
"""

import gdb
import gdb.printing

ITEM_TYPES = (
    "empty hexBinary base64Binary i1 i2 i4 i8 ui1 ui2 ui4 ui8 r4 r8 duration yearMonth monthDay year month day date "
    "datetime time char string boolean decimal integer xmlObject xmlCollection"
).split()

# The kinds of CDateTime, by the fields that they have.
DATE_TIME, DATE, YEAR_MONTH, YEAR, TIME, DAY, MONTH, MONTH_DAY = range(1, 9)
WITH_YEAR = (DATE_TIME, DATE, YEAR_MONTH, YEAR)
WITH_MONTH = (DATE_TIME, DATE, YEAR_MONTH, MONTH, MONTH_DAY)
WITH_DAY = (DATE_TIME, DATE, DAY, MONTH_DAY)
WITH_TIME = (DATE_TIME, TIME)


def u16string(value):
    length = int(value["_M_string_length"])
    return value["_M_dataplus"]["_M_p"].string("utf-16", "replace", length)


def digits(value):
    """The digits of a CBigInteger, the most significant one first."""
    data = value["m_digits"]
    first, count = data["_M_dataplus"]["_M_p"], int(data["_M_string_length"])
    return "".join(str(int(first[i])) for i in reversed(range(count)))


def big_integer(value):
    return ("-" if int(value["m_sign"]) == -1 else "") + digits(value)


def decimal(value):
    fraction = digits(value["m_fractional"])
    text = big_integer(value["m_integral"])
    return text if fraction.strip("0") == "" else text + "." + fraction.zfill(int(value["m_divider"]))


def fraction_of_second(milli, micro, nano):
    text = "%03d%03d%03d" % (int(milli), int(micro), int(nano))
    return ("." + text.rstrip("0")) if text.strip("0") else ""


def date_time(value):
    kind = int(value["m_dtType"])
    if kind == 0:
        return "not set"
    text = ""
    if kind in WITH_YEAR:
        year = int(value["m_year"])
        text += ("-" if year < 0 else "") + "%04d" % abs(year)
    elif kind != TIME:
        text += "-"
    if kind in WITH_MONTH:
        text += "-%02d" % int(value["m_month"])
    elif kind in WITH_DAY:
        text += "-"
    if kind in WITH_DAY:
        text += "-%02d" % int(value["m_day"])
    if kind == DATE_TIME:
        text += "T"
    if kind in WITH_TIME:
        text += "%02d:%02d:%02d" % tuple(int(value[field]) for field in ("m_hour", "m_minute", "m_second"))
        text += fraction_of_second(value["m_milliSecond"], value["m_microSecond"], value["m_nanoSecond"])
    return text + zone(value)


def zone(value):
    if not value["m_isUTC"]:
        return ""
    if not value["m_hasTimeZone"]:
        return "Z"
    hour = int(value["m_zoneHour"])
    return "%s%02d:%02d" % ("-" if hour < 0 else "+", abs(hour), int(value["m_zoneMinute"]))


def duration(value):
    def part(field, designator):
        return "%d%s" % (int(value[field]), designator) if int(value[field]) else ""

    fraction = fraction_of_second(value["m_milliSeconds"], value["m_microSeconds"], value["m_nanoSeconds"])
    seconds = "%d%sS" % (int(value["m_seconds"]), fraction) if int(value["m_seconds"]) or fraction else ""
    days = part("m_years", "Y") + part("m_months", "M") + part("m_days", "D")
    time = part("m_hours", "H") + part("m_minutes", "M") + seconds
    return ("-P" if value["m_isNegative"] else "P") + days + ("T" + time if time else "")


def binary(value):
    buffer = value["m_buffer"]
    if not buffer:
        return "no bytes"
    length, limit = int(buffer["m_length"]), gdb.parameter("print elements") or 2**32
    shown = " ".join("%02X" % int(buffer["m_data"][i]) for i in range(min(length, limit)))
    return "%d bytes: %s%s" % (length, shown, " ..." if length > limit else "")


def xml_object(pointer):
    """What a pointer to a CXmlObjectBase holds: the real class, the element's name, the references."""
    if not pointer:
        return "null"
    real = pointer.cast(pointer.dynamic_type).dereference()
    name = str(real.type.unqualified()).replace("KzXmlLib10::", "")
    base = pointer.cast(gdb.lookup_type("KzXmlLib10::CXmlObjectBase").pointer()).dereference()
    element = u16string(real["m_name"] if name == "CElement" else base["m_elementName"])
    count = int(base["m_refCount"]["_M_i"])
    return name + (' "%s"' % element if element else "") + ", %d reference%s" % (count, "" if count == 1 else "s")


def exception(value):
    lines = []
    while True:
        lines.append(u16string(value["m_message"]))
        if not value["m_innerException"]:
            return "\n".join(lines)
        value = value["m_innerException"].dereference()


def payload(name, show):
    def read(value):
        pointer = value["m_value"]["payload"]
        if not pointer:
            return "null"
        return show(pointer.cast(gdb.lookup_type(name).pointer()).dereference())

    return read


def integer(bits, signed):
    def read(value):
        number = int(value["m_value"]["bits"]) & (1 << bits) - 1
        return str(number - (1 << bits) if signed and number >> bits - 1 else number)

    return read


def scalar(c_type):
    return lambda value: str(value["m_value"]["bits"].address.cast(gdb.lookup_type(c_type).pointer()).dereference())


def code_unit(value):
    return repr(chr(int(value["m_value"]["bits"]) & 0xFFFF))


# How the cell of a KzVariant is read, by the kind.
CELLS = {"i%d" % size: integer(8 * size, True) for size in (1, 2, 4, 8)}
CELLS.update(("ui%d" % size, integer(8 * size, False)) for size in (1, 2, 4, 8))
CELLS.update((kind, integer(16, False)) for kind in ("year", "month", "day"))
CELLS.update(r4=scalar("float"), r8=scalar("double"), boolean=scalar("bool"))
CELLS["char"] = code_unit
CELLS["string"] = payload("std::u16string", lambda text: '"%s"' % u16string(text))
CELLS["decimal"] = payload("KzXmlLib10::CDecimal", decimal)
CELLS["integer"] = payload("KzXmlLib10::CBigInteger", big_integer)
CELLS["duration"] = payload("KzXmlLib10::CDateTimeSpan", duration)
for kind in ("hexBinary", "base64Binary"):
    CELLS[kind] = payload("KzXmlLib10::CBinaryData", binary)
for kind in ("yearMonth", "monthDay", "date", "datetime", "time"):
    CELLS[kind] = payload("KzXmlLib10::CDateTime", date_time)
for kind in ("xmlObject", "xmlCollection"):
    CELLS[kind] = lambda value: xml_object(
        value["m_value"]["payload"].cast(gdb.lookup_type("KzXmlLib10::CXmlObjectBase").pointer())
    )


def variant(value):
    kind = ITEM_TYPES[int(value["m_type"])]
    if value["m_isNil"]:
        return "nil" if kind == "empty" else kind + " nil"
    return kind if kind == "empty" else kind + " " + CELLS[kind](value)


def make_printer(show):
    class Printer:
        def __init__(self, value):
            self.value = value

        def to_string(self):
            return show(self.value)

    return Printer


def build():
    printers = gdb.printing.RegexpCollectionPrettyPrinter("quillon")
    for name, show in {
        "CBigInteger": big_integer,
        "CBinaryData": binary,
        "CDateTime": date_time,
        "CDateTimeSpan": duration,
        "CDecimal": decimal,
        "CKz(|Validation|InvalidValue|InvalidNamespace|InvalidState|InvalidParam|OverFlow)Exception": exception,
        "KzVariant": variant,
        "CSmartPtr<.*>": lambda value: xml_object(value["m_object"]),
    }.items():
        printers.add_printer(name, "^KzXmlLib10::" + name + "$", make_printer(show))
    return printers


gdb.printing.register_pretty_printer(gdb.current_objfile(), build(), replace=True)
