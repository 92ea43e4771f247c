#!/usr/bin/env python3
"""The manual page of brimo-settings as installed: its KEYS section made from
`brimo-settings keys --json` (English, without an office standard), and the
project's version in its title.

    man-keys.py TEMPLATE BRIMO-SETTINGS VERSION OUTPUT
"""
import json, os, subprocess, sys

template, tool, version, output = sys.argv[1:5]
environment = dict(os.environ, LC_ALL="C.UTF-8", BRIMO_STANDARD="/nonexistent/standard.ini")
keys = json.loads(subprocess.run([tool, "keys", "--json"], check=True, capture_output=True, env=environment).stdout)


def roff(text):
    return text.replace("\\", "\\e").replace("-", "\\-")


lines = [".nh"]
for dialog, title in (("general", "General dialog"), ("slope", "Slope dialog")):
    lines += [".SS " + title]
    for key in (k for k in keys if k["dialog"] == dialog):
        facts = [key["type"], "Lisp " + roff(key["lisp"])]
        if key["choices"]:
            facts.append("choices " + ", ".join(roff(c) for c in key["choices"]))
        facts.append("default " + (roff(key["default"]) or "empty"))
        lines += [".TP", ".B " + roff(key["key"]), roff(key["meaning"]) + " (" + "; ".join(facts) + ")."]
lines.append(".hy")
page = open(template, encoding="utf-8").read()
page = page.replace('.\\" @BRIMO_KEYS@', "\n".join(lines)).replace("@PROJECT_VERSION@", version)
open(output, "w", encoding="utf-8").write(page)
