#!/usr/bin/env python3
"""The program's own messages against translations/*.ts: lupdate run over
src/ into copies finds every message translated in each of the four
languages (none unfinished, none missing, none left over), and each
translation is a sentence of its own language that keeps the placeholders
(%1, %2: the file, the field's caption, the reason) of its source.

    translations_test.py PROJECT_ROOT LUPDATE
"""
import pathlib, re, shutil, subprocess, sys, tempfile
import xml.etree.ElementTree as ET

root, lupdate = pathlib.Path(sys.argv[1]), sys.argv[2]
languages = ["fr", "en", "de", "it"]
faults = []
with tempfile.TemporaryDirectory() as scratch:
    copies = []
    for language in languages:
        copy = pathlib.Path(scratch) / f"brimo_{language}.ts"
        shutil.copy(root / "translations" / copy.name, copy)
        copies.append(str(copy))
    subprocess.run([lupdate, "-silent", "-locations", "none", "-extensions", "cpp,h", str(root / "src"), "-ts", *copies],
                   check=True)
    texts = {}
    for language, copy in zip(languages, copies):
        for context in ET.parse(copy).getroot().iter("context"):
            name = context.findtext("name")
            for message in context.iter("message"):
                source = message.findtext("source")
                translation = message.find("translation")
                where = f"{language}: {name}: {source!r}"
                if translation.get("type") in ("unfinished", "vanished", "obsolete") or not (translation.text or "").strip():
                    faults.append(f"{where}: {translation.get('type') or 'empty'}")
                    continue
                text = translation.text
                if sorted(re.findall(r"%\d", text)) != sorted(re.findall(r"%\d", source)):
                    faults.append(f"{where}: placeholders differ in {text!r}")
                texts.setdefault((name, source), {})[language] = text
    for (name, source), by_language in texts.items():
        if by_language.get("en") != source:
            faults.append(f"en: {name}: {source!r}: the English text is the source's own")
        others = [by_language[language] for language in ("fr", "de", "it") if language in by_language]
        if source in others or len(set(others)) != len(others):
            faults.append(f"{name}: {source!r}: a translation repeats another language's sentence")
print("\n".join(faults) or f"{len(texts)} messages, each in {len(languages)} languages")
sys.exit(1 if faults else 0)
