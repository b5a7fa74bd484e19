#!/usr/bin/env python3
"""Writes src/app/dialogs/session_texts.cpp: the texts the window shows from the session and the
engine (key meanings, keyboard key names, keyboard names, the calculator's messages, the reasons a
number field refuses its text, the names of the physical constants and of the built-in themes),
marked for the translation tools. Those folders know no Qt, so their texts are listed here instead; run this
after changing one of them, then refresh the translations (cmake --build build --target
update_translations)."""
import re
import sys
from pathlib import Path

root = Path(__file__).resolve().parent.parent
literal = r'"((?:[^"\\]|\\.)*)"'

legends = (root / "src/session/key_legends.cpp").read_text()
meanings = []
for m in re.finditer(r"KeyLegend\{fid::\w+,\s*" + literal + r",\s*" + literal + r",\s*" + literal + r"\}", legends):
    for text in (m.group(2), m.group(3)):
        if re.search("[A-Za-z]{2}", text) and text not in meanings:
            meanings.append(text)
if len(re.findall(r"KeyLegend\{fid::", legends)) != len(re.findall(r"KeyLegend\{fid::\w+,\s*" + literal, legends)):
    sys.exit("session-texts.py: a key legend is not written as KeyLegend{fid::Name, \"face\", \"meaning\", \"key\"}")

keyboards = (root / "src/engine/keyboards.h").read_text()
names_block = re.search(r"kKeyboardNames = \{(.*?)\};", keyboards, re.S).group(1)
keyboard_names = re.findall(literal, names_block)

session = (root / "src/session/session.h").read_text()
messages_block = re.search(r"namespace message \{(.*?)\}  // namespace message", session, re.S).group(1)
messages = []
for m in re.finditer(r"std::string_view \w+ =((?:\s*" + literal + r")+);", messages_block):
    messages.append("".join(re.findall(literal, m.group(1))))

labels = (root / "src/display/labels.h").read_text()
first = labels.index("LabelRow{ValueTag::Avogadro,")
last = labels.index("\n", labels.index("LabelRow{ValueTag::ReferenceIntensity,"))
constants = re.findall(r"LabelRow\{ValueTag::\w+, " + literal + r"\}", labels[first:last])

themes_source = (root / "src/session/theme.cpp").read_text()
themes = re.findall(r"\{theme_id::\w+, " + literal, themes_source)

reader = (root / "src/session/number_reader.cpp").read_text()
messages += re.findall(r"return \{std::nullopt, " + literal + r"\}", reader)

# The store's and the session's notices: every sentence written as Notice("...", {...}).
notices = []
for source in sorted((root / "src/store").glob("*.cpp")) + sorted((root / "src/session").glob("*.cpp")):
    for m in re.finditer(r"Notice\(((?:\s*" + literal + r")+)\s*,", source.read_text()):
        sentence = "".join(re.findall(literal, m.group(1)))
        if sentence not in notices:
            notices.append(sentence)

def rows(context, texts):
    return "".join(f'    QT_TRANSLATE_NOOP("{context}", "{t}"),\n' for t in texts)

out = f"""// Written by scripts/session-texts.py from the session's and the engine's tables: do not edit.
// The texts the window shows from code that knows no Qt, marked for the translation tools; the
// window looks them up by their English text (ui_text.h).
#include <QtGlobal>

// One text a line, as the script writes it.
// clang-format off
namespace brinto {{
namespace {{

[[maybe_unused]] constexpr const char* kKeyMeanings[] = {{
{rows("KeyMeaning", meanings)}}};

[[maybe_unused]] constexpr const char* kKeyboardNames[] = {{
{rows("Ui", keyboard_names)}}};

[[maybe_unused]] constexpr const char* kMessages[] = {{
{rows("Message", messages)}}};

[[maybe_unused]] constexpr const char* kConstants[] = {{
{rows("Constant", constants)}}};

[[maybe_unused]] constexpr const char* kThemes[] = {{
{rows("Theme", themes)}}};

}}  // namespace

// The sentences of the store's and the session's notices, found again by NoticeText.
extern const char* const kNoticeSentences[] = {{
{rows("Notice", notices)}}};
extern const int kNoticeSentenceCount = {len(notices)};

}}  // namespace brinto
// clang-format on
"""
(root / "src/app/dialogs/session_texts.cpp").write_text(out)
print(f"{len(meanings)} key meanings and key names, {len(keyboard_names)} keyboard names, {len(messages)} messages, "
      f"{len(constants)} constants, {len(themes)} themes, {len(notices)} notices")
