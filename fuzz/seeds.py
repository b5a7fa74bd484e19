#!/usr/bin/env python3
"""Writes the seed inputs of the fuzz targets into corpus/<target>/.

Each seed is a small, meaningful use of the surface (a calculation in each input method, a macro,
a paste, a legacy export...), so that the fuzzers start from inputs that reach deep instead of
having to discover the key codes and record layouts by chance. Run it again after changing a
target's input layout; the files are kept in the repository.
"""
import math
import os
import struct
import sys

HERE = os.path.dirname(os.path.abspath(__file__))

# session_keys_fuzzer: a byte below 96 taps the key named by the next byte; 95 + n runs step n.
STEP = {name: 95 + n for n, name in enumerate(
    ["TapRawId", "DispatchKey", "Character", "Special", "Action", "Undo", "Redo", "Copy", "Cut",
     "Paste", "PasteText", "SelectKeyboard", "BlockKey", "BasicOrAdvanced", "PreferenceWord",
     "PreferenceField", "UserKey", "HostAnswers"], start=1)}


def keys(*ids):
    return b"".join(bytes([0, i]) for i in ids)


def step(name, *payload):
    return bytes([STEP[name], *payload])


def text_step(name, text, prefix=b""):
    data = text.encode() if isinstance(text, str) else text
    return bytes([STEP[name]]) + prefix + bytes([len(data)]) + data


SIMPLE, PRECEDENCE, RPN = 209, 210, 211
ENTER, ADD, SUB, MUL, DIV, EQ = 21, 22, 23, 24, 25, 26

SESSION = {
    "rpn_arithmetic": keys(RPN, 2, ENTER, 3, ADD, 5, MUL, 4, ENTER, 0, DIV, 38, 39, 40, 41, 42, 44, 207, 208),
    "simple_and_precedence": keys(SIMPLE, 2, ADD, 3, MUL, 5, EQ, PRECEDENCE, 2, ADD, 3, MUL, 5, EQ, EQ,
                                  47, 2, ADD, 47, 3, 48, 48, MUL, MUL, 4, EQ),
    "entry_editing": keys(1, 16, 2, 3, 18, 19, 4, 5, 6, 7, 20, 20, 19, 17, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9),
    "entry_edited_to_nothing": keys(1, 19, 4, 20, 20, 19, 2, ADD, 5, 19, 20, 19),
    "undo_redo": keys(RPN, 1, ENTER, 2, ADD, 3, MUL) + step("Undo") + step("Undo") + step("Redo")
    + keys(7) + step("Redo") + step("Undo") * 12,
    "macro": keys(RPN, 212, 1, ENTER, 2, ADD, 214, 3, MUL, 215, 213, 213, 214, 215, 212) + keys(*([1] * 64)) + keys(213),
    "programmer": step("SelectKeyboard", 5) + keys(133, 10, 11, 12, 13, 14, 15, ENTER, 130, 1, 0, 1, 1, 180,
                                                   131, 7, 7, 182, 134, 135, 136, 137, 138, 139, 140, 141, 178, 179)
    + step("BlockKey", 1) + step("BlockKey", 7) + keys(167, 168, 169, 170, 171, 172, 132),
    "scientific": keys(RPN, 3, 89, 90, 91, 92, 93, 94, 95, 96, 89, 97, 98, 99, 100, 102, 104, 105, 106, 107, 108, 109,
                       5, 124, 125, 123, 60, 61, 62, 63, 2, 64, 3, 166, 4, 54, 55, 56, 57, 58, 59, 65, 66, 67, 176, 177),
    "financial": keys(RPN, 3, 6, 0, 69, 5, 70, 1, 0, 0, 0, 0, 0, 71, 0, 73, 72, 68, 72, 1, 2, 74, 6, 75, 76, 77, 78,
                      1, 0, 79, 1, 2, 80, 81, 82, 1, 83, 84, 241, 26, 29),
    "cash_flows": keys(RPN, 1, 0, 0, 19, 43, 0, 3, 0, 43, 1, 4, 0, 43, 85, 2, 86, 1, 0, 87, 88, 35, 36, 37),
    "statistics": keys(RPN, 1, ENTER, 2, 110, 3, ENTER, 5, 110, 4, ENTER, 9, 110, 111, 112, 113, 114, 115, 116, 117,
                       118, 119, 120, 121, 122, 126, 127, 128, 129),
    "units_and_dates": keys(RPN, 1, 0, 142, 143, 144, 145, 216, 217, 218, 219, 220, 164, 165, 150, 151, 152, 153,
                            160, 161, 162, 229, 230, 186, 187, 188, 1, 0, 192, ADD, 189, 190, 191, 193, 194, 195,
                            196, 197, 198, 199, 200, 201, 202, 203, 204, 205, 185),
    "registers_and_formats": keys(RPN, 7, 43, 1, 2, 45, 1, 2, 46, 0, 5, 43, ADD, 3, 248, 9, 9, 244, 9, 9, 85,
                                  173, 16, 174, 3, 175, 4, 184, 2, 184, 20, 28, 68),
    "paste_and_clipboard": text_step("PasteText", "abc -12.5e3xyz") + step("Copy") + step("Cut") + step("Paste")
    + text_step("HostAnswers", "0x1F,5", prefix=b"\x01") + step("Paste") + step("SelectKeyboard", 5)
    + keys(133) + text_step("PasteText", "DEADBEEF1"),
    "preferences_and_clear_all": step("PreferenceWord", 2, 0x51, 0x00) + keys(1, ENTER, 2, ADD)
    + step("PreferenceField", 1, 4) + step("PreferenceField", 5, 2) + keys(27, 27, 250, 251, 27)
    + step("PreferenceWord", 3, 0x0C, 0x00) + step("HostAnswers", 0, 0) + keys(29)
    + step("HostAnswers", 1, 0) + keys(32) + step("PreferenceWord", 2, 0xFF, 0xFF) + keys(38, 39, 41),
    "hardware_keys": b"".join(step("Character", ord(c)) for c in "12+3*4=\b5.5e2/2=%()sr")
    + step("Special", 0) + step("Special", 1) + step("Special", 2) + step("Special", 3) + step("Special", 5)
    + step("Special", 6) + step("Action") + step("PreferenceField", 6, 3) + step("Action") + step("BasicOrAdvanced", 1)
    + step("BasicOrAdvanced", 0),
    "user_keyboard": step("UserKey", 0, 22) + step("UserKey", 1, 89) + step("UserKey", 12, 10)
    + step("SelectKeyboard", 9) + keys(5) + step("BlockKey", 1) + step("BlockKey", 2) + step("BlockKey", 3)
    + step("PreferenceField", 8, 2) + keys(27) + step("BlockKey", 1),
    "unknown_ids": step("TapRawId", 0xFF, 0, 0, 0) + step("TapRawId", 0x10, 0x27, 0, 0) + step("DispatchKey", 252)
    + step("TapRawId", 0xFF, 0xFF, 0xFF, 0xFF) + keys(42, 43, 255, 253),
}

PASTE = {
    "decimal": b"\x00" + b"12.5",
    "comma_radix_exponent": b"\x00" + b"Total: -1,25E-3 units",
    "huge": b"\x00" + b"9" * 60,
    "overflow_exponent": b"\x00" + b"1e999",
    "underflow_exponent": b"\x00" + b"1e-999",
    "binary": b"\x00" + b"101101",
    "octal_while_typing": bytes([0x48]) + b"777777777777",
    "hex": bytes([0x0C]) + b"0xDeadBeef",
    "no_digits": b"\x01" + b"-.e+",
    "rpn_trailing_point": bytes([0x42]) + b"3.",
}

CLI = {
    "rpn_json": b"\x00--json\n--pref\n2=0x51\n2\nenter\n3\n+",
    "characters_and_keyboards": b"\x00--json\nkeys:12+3*4=\nkb:4\nhex\nkey:1\nkey:12\nundo\nredo",
    "paste_and_copy": b"\x00--json\npaste:-12.5e3\ncopy\ncut\npaste:7",
    "numbers": b"\x00--json\n-1.5e-3\n#65535\n#211\n1.\n.5e",
    "options": b"\x00--now\n2026-02-28 23:59:59\n--seed\n0xFFFFFFFF\n--json\nnow\nrand",
    "bad_option": b"\x00--pref\n9=1",
    "list_keys": b"\x00--list-keys",
    "stdin_script": b"\x01--json\x002 enter 3 +\n  sin\tbasic advanced\n",
    "interactive": b"\x09\x00" + b"1 2 +\nbogus\nundo\nquit\n",
    "db_option": b"\x00--db\n/nonexistent/state.db\n1",
}


# load_state_fuzzer: a count byte, then records of [kind (bit 7: an index byte follows)]
# [size, 16 bits][payload].
def record(kind, payload, index=None):
    head = kind | (0x80 if index is not None else 0)
    out = bytes([head]) + (bytes([index]) if index is not None else b"")
    return out + struct.pack("<H", len(payload)) + payload


def preferences(word2=0x0290, word3=0x0002, version=7):
    return struct.pack("<7H", version, 0, word2, word3, 0, 0, 0)


def calc_state(x=5.0, y=0.0, status=0x0800, engine_flags=0x0020, entry=b"", pending=(), version=7,
               macro_position=0, last_key=255, levels=None, amortization=None):
    """levels: (value, tag) from X up, instead of x and y; amortization: (start, end, step, balance)."""
    b = bytearray(576)
    struct.pack_into("<HHHHHBB", b, 0, version, status, 0, 0, engine_flags, len(entry), 0)
    b[12:12 + len(entry)] = entry
    levels = (levels or [(x, 0), (y, 0)]) + [(0.0, 0)] * 20
    struct.pack_into("<20d", b, 56, *[value for value, _ in levels[:20]])
    struct.pack_into("<20H", b, 216, *[tag for _, tag in levels[:20]])
    struct.pack_into("<20H", b, 256, *([0xFFFF] * 20))
    struct.pack_into("<H", b, 296, len(pending))
    struct.pack_into("<II", b, 300, 255, 255)
    struct.pack_into("<%dI" % len(pending), b, 308, *pending) if pending else None
    struct.pack_into("<I", b, 468, 255)
    struct.pack_into("<dHH", b, 472, 0.0, 0, 0xFFFF)
    if amortization:
        start, end, step, balance = amortization
        struct.pack_into("<dhhH", b, 504, balance, start, end, step)
    struct.pack_into("<HIH", b, 518, macro_position, 211, 0)
    struct.pack_into("<III", b, 528, last_key, last_key, 1)
    return bytes(b)


def register_bank(values=None, cash_flows=-1, version=7, every=None, groups=None):
    """every: one value in all 124 registers; groups: one group count for all 100 entries."""
    b = bytearray(1616)
    struct.pack_into("<Hh", b, 0, version, cash_flows)
    if groups is not None:
        struct.pack_into("<100I", b, 220, *([groups] * 100))
    v = [every] * 124 if every is not None else [0.0] * 124
    if every is None:
        v[106] = 12.0
        v[119:124] = [365.25, 30.4375, 7.0, 24.0, 30.0]
    for k, value in (values or {}).items():
        v[k] = value
    struct.pack_into("<124d", b, 624, *v)
    return bytes(b)


def macro_record(keys_list, version=2):
    b = bytearray(256)
    struct.pack_into("<HH", b, 0, version, len(keys_list))
    struct.pack_into("<%dI" % len(keys_list), b, 4, *keys_list)
    return bytes(b)


def user_keys(assigned=None):
    k = [255] * 24
    for slot, fid in (assigned or {}).items():
        k[slot] = fid
    return struct.pack("<24I", *k)


def store(*records):
    return bytes([len(records) - 1]) + b"".join(records)


LOAD_STATE = {
    "empty_store": bytes([0]),
    "complete_rpn": store(record(1, preferences(0x0051)), record(3, register_bank({0: 42.0, 100: 36.0})),
                          record(5, user_keys({0: 22, 12: 89})), record(4, macro_record([211, 1, 21, 22, 215])),
                          record(2, calc_state(x=2.0, y=3.0))),
    "pending_operators": store(record(1, preferences()), record(2, calc_state(engine_flags=0x0001, status=0x1000,
                                                                              pending=(22, 47, 24)))),
    "typing_a_number": store(record(1, preferences()), record(2, calc_state(status=0x0300, entry=b"-12.5e-3"))),
    "cash_flows": store(record(1, preferences(0x0051)),
                        record(3, register_bank({0: -100.0, 1: 30.0, 2: 40.0, 3: 50.0}, cash_flows=3))),
    "old_versions": store(record(1, preferences(version=6)), record(3, register_bank(version=6)),
                          record(4, macro_record([211, 215], version=1)), record(2, calc_state(version=6))),
    "short_records": store(record(1, preferences()[:10]), record(3, register_bank()[:1600]),
                           record(5, user_keys()[:95]), record(4, macro_record([211])[:200]),
                           record(2, calc_state()[:575])),
    "depth_out_of_range": store(record(1, preferences(0x007D)), record(2, calc_state())),
    "duplicates_and_strangers": store(record(1, preferences(0x0052), index=0), record(1, preferences(0x0051)),
                                      record(7, b"\x01\x02\x03"), record(2, calc_state(), index=3),
                                      record(0, b"")),
}

# Values no calculation should produce under every kind of tag (units, integer formats, durations,
# dates, a financial label), then every key of every family pressed on them in turn, in each
# input method, angle unit and integer entry base, on the programmer keyboard (status 4) and off
# it; and every key again on financial registers that are not numbers, huge, negative or damaged.
# Not pressed: the clears, the macro keys and the register prefixes (they would take the next key
# as their register).
ODD = [float("nan"), float("inf"), -float("inf"), 5e-324, -0.0, 1e300, -1e300, 4294967296.0 * 3 + 5,
       -2147483649.0, 4039372800.0, 0.5, 170.0]
TAGS = [0, 1903, 1915, 1918, 1910, 1904, 1922, 1924, 1925, 1928, 1929, 1800, 1801, 1802, 1803, 1804, 1808,
        1811, 1404]
EVERY_KEY = bytes(k for k in range(256) if k not in (29, 30, 31, 32, 33, 34, 35, 36, 37, 185, 43, 45, 46)
                  and not 212 <= k <= 215 and not 244 <= k <= 249)


def odd_levels(shift):
    return [(ODD[(k + shift) % len(ODD)], TAGS[(3 * k + shift) % len(TAGS)]) for k in range(20)]


for n, (status, word2, angle) in enumerate([(0x0804, 0x0051, 0), (0x0824, 0x00D1, 1), (0x0834, 0x0251, 2),
                                            (0x0800, 0x0050, 0), (0x0804, 0x0352, 1)]):
    LOAD_STATE["odd_values_%d" % n] = store(record(1, preferences(word2)), record(
        2, calc_state(status=status, engine_flags=0x0020 * (word2 & 1) | angle << 14, levels=odd_levels(n)))) + EVERY_KEY
for name, bank, amortization in [
        ("not_numbers", register_bank(every=float("nan")), None),
        ("infinite", register_bank(every=float("inf")), None),
        ("negative_huge", register_bank(every=-1e308), None),
        ("negative_periods", register_bank({100: -5.5}), (3, 0, 0, 0.0)),
        ("far_negative_periods", register_bank({100: -1e300}), (3, 0, 0, 0.0)),
        ("many_periods", register_bank({100: 1e300}), (0, 32767, 0, 0.0)),
        ("full_list", register_bank(cash_flows=99, groups=0x7FFFFFFF), None),
        ("negative_groups", register_bank(cash_flows=5, groups=0x80000000), None),
        ("damaged_count", register_bank(cash_flows=300), None),
        ("damaged_amortization", register_bank(), (-32768, 0, 7, float("nan")))]:
    LOAD_STATE["registers_" + name] = store(record(1, preferences(0x0351)), record(3, bank), record(
        2, calc_state(x=-2.5, y=float("nan"), amortization=amortization))) + EVERY_KEY

# legacy_import_fuzzer: registry export files.
def hex_value(name, data):
    return '"%s"=hex:%s' % (name, ",".join("%02x" % c for c in data))


def legacy_preferences(version, a=0, depth=4, b=0, c=0):
    buf = bytearray(160)
    struct.pack_into("<HHB", buf, 0, version, a, depth)
    struct.pack_into("<HH", buf, 12, b, c)
    return bytes(buf[:16])


def export(lines, header="REGEDIT4"):
    return ("\r\n".join([header, "", r"[HKEY_CURRENT_USER\Software\ZEB\Brinto]"] + lines) + "\r\n").encode()


LEGACY = {
    "version1_all_slots": export([hex_value("saved_0", legacy_preferences(1, a=0x2000)),
                                  hex_value("saved_1", register_bank(version=3)[:64]),
                                  hex_value("saved_3", user_keys({0: 22})),
                                  hex_value("saved_4", struct.pack("<HH3I", 3, 0, 211, 1, 215))]),
    "version6_preferences": export([hex_value("saved_0", legacy_preferences(6, a=0x4001, depth=20, b=0x8071,
                                                                           c=0x3003))]),
    "continued_lines_v5": ("Windows Registry Editor Version 5.00\r\n\r\n"
                           "[HKEY_CURRENT_USER\\Software\\ZEB\\Brinto]\r\n"
                           "\"saved_0\"=hex:05,00,01,00,\\\r\n  08,00,00,00,00,00,00,00,51,00,04,00\r\n"
                           "\"other\"=dword:00000001\r\n[HKEY_CURRENT_USER\\Software\\Other]\r\n"
                           "\"saved_0\"=hex:01\r\n").encode("utf-16-le").join([b"\xff\xfe", b""]),
    "no_preferences": export([hex_value("saved_4", struct.pack("<HH2I", 2, 0, 211, 215))]),
    "deleted_value": export([hex_value("saved_0", legacy_preferences(4)), '"saved_0"=-']),
    "not_an_export": b"hello\n",
}


# rounding_fuzzer: a double and a count of places. Decimal ties (k.5 units of the last place), the
# doubles beside them, which become ties when cut to 12 digits, and values the display rounds up
# across a power of ten.
def rounding(value, places):
    return struct.pack("<dB", value, places)


ROUNDING = {"tie_%d" % n: rounding(float(text), places) for n, (text, places) in enumerate(
    [("0.125", 2), ("1.005", 2), ("-1.005", 2), ("999.995", 2), ("0.005", 2), ("0.5", 0), ("45.5", 0),
     ("2689.2104999999998", 3), ("1234567890.12345", 3), ("12345678905e-1", 0), ("7385e-4", 3),
     ("1e20", 2), ("0.0049", 2)])}
ROUNDING.update({"beside_tie_%d" % n: rounding(math.nextafter(float(text), toward), places)
                 for n, (text, places, toward) in enumerate([("2.675", 2, 0.0), ("2.675", 2, 10.0),
                                                             ("81.0000005", 6, 100.0), ("0.45", 1, 0.0)])})

def write(target, seeds):
    folder = os.path.join(HERE, "corpus", target)
    os.makedirs(folder, exist_ok=True)
    for name, data in seeds.items():
        with open(os.path.join(folder, name), "wb") as f:
            f.write(data)


TARGETS = {"session_keys_fuzzer": SESSION, "paste_fuzzer": PASTE, "cli_fuzzer": CLI,
           "load_state_fuzzer": LOAD_STATE, "legacy_import_fuzzer": LEGACY, "rounding_fuzzer": ROUNDING}

if __name__ == "__main__":
    for target, seeds in TARGETS.items():
        if len(sys.argv) < 2 or target in sys.argv[1:]:
            write(target, seeds)
