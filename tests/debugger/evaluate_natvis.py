"""Runs inside GDB: evaluates the rules for ZRString in the file $NATVIS for each of the locals
$SAMPLES, and prints the results."""

import os
import re
from xml.etree import ElementTree

import gdb

NAMESPACE = "{http://schemas.microsoft.com/vstudio/debugger/natvis/2010}"


def valid(rules, sample):
    """The rules whose conditions hold."""
    return [rule for rule in rules if int(evaluated(rule.get("Condition", "1"), sample))]


def evaluated(expression, sample):
    return gdb.parse_and_eval(re.sub(r"\bbody_", sample + ".body_", expression))


def shown(expression, sample):
    text = re.fullmatch(r"(.*),\[(.*)\]su", expression)
    if not text:
        return str(evaluated(expression, sample))
    start, length = (int(evaluated(part, sample)) for part in text.groups())
    units = gdb.selected_inferior().read_memory(start, 2 * length).tobytes() if length else b""
    return '"%s"' % units.decode("utf-16-le")


for sample in os.environ["SAMPLES"].split():
    kind = ElementTree.parse(os.environ["NATVIS"]).find(NAMESPACE + "Type[@Name='ZRString']")
    display = valid(kind.findall(NAMESPACE + "DisplayString"), sample)[0].text
    display = re.sub(r"\{(.*?)\}", lambda match: shown(match[1], sample), display)
    print("natvis: %s DisplayString %s" % (sample, display))
    for view in valid(kind.findall(NAMESPACE + "StringView"), sample)[:1]:
        print("natvis: %s StringView %s" % (sample, shown(view.text, sample)))
    for item in valid(kind.findall(NAMESPACE + "Expand/" + NAMESPACE + "Item"), sample):
        print("natvis: %s %s %s" % (sample, item.get("Name"), shown(item.text, sample)))
