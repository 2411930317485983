#!/usr/bin/env python3
"""make_formats.py OUTPUT.html: the two file formats as one page, made from the schemas, the descriptors and their README.

Fails when the README does not say what an attribute of a schema means, or speaks of one that no schema has.
"""

import re
import sys
import xml.etree.ElementTree as Xml
from html import escape
from pathlib import Path

MODELS = Path(__file__).resolve().parent.parent / "models"
XS = "{http://www.w3.org/2001/XMLSchema}"
TABLES = {"Node": "attribute of Node", "Parameter": "attribute"}  # the README's table for an element's attributes
STYLE = """
:root { color-scheme: light dark; }
body { font: 15px/1.5 sans-serif; max-width: 75em; margin: 2em auto; padding: 0 1em; }
table { border-collapse: collapse; margin: 0.5em 0 1.5em; }
th, td { border: 1px solid #888; padding: 0.2em 0.6em; text-align: left; vertical-align: top; }
code { font-size: 95%; overflow-wrap: anywhere; }
"""


def table(head, rows):
    line = lambda kind, cells: "<tr>" + "".join(f"<{kind}>{cell}</{kind}>" for cell in cells) + "</tr>\n"
    return "<table>\n" + line("th", head) + "".join(line("td", row) for row in rows) + "</table>\n"


def code(text):
    return f"<code>{escape(text)}</code>" if text else ""


def meanings(readme):
    """What the README's tables say: (head of the table, name) -> meaning. A first cell may name several."""
    found = {}
    head = None
    for line in readme.splitlines():
        cells = [cell.strip() for cell in line.strip("|").split(" | ")] if line.startswith("|") else None
        if not cells:
            head = None
        elif head is None:
            head = cells[0].replace("`", "")
        elif not cells[0].startswith("-"):
            for name in re.findall(r"`([^`]+)`", cells[0]) or [cells[0]]:
                found[head, name] = cells[1]
    return found


def restriction(types, name):
    """What a simple type allows, in a few words."""
    plain = {"string": "text", "positiveInteger": "whole number from 1", "nonNegativeInteger": "whole number from 0",
             "integer": "whole number", "decimal": "number", "date": "date"}
    if name.startswith("xs:"):
        return plain[name[3:]]
    return describe(types, types[name])


def describe(types, simple):
    union = simple.find(f"{XS}union")
    if union is not None:
        return " or ".join(restriction(types, member) for member in union.get("memberTypes").split())
    limits = simple.find(f"{XS}restriction")
    items = [item.get("value") for item in limits.findall(f"{XS}enumeration")]
    if items:
        return "one of " + ", ".join(map(code, items))
    pattern = limits.find(f"{XS}pattern")
    if pattern is not None:
        return "text like " + code(pattern.get("value"))
    words = {"minLength": "at least {} character", "minInclusive": "from {}", "maxInclusive": "to {}", "minExclusive": "above {}"}
    return " ".join([restriction(types, limits.get("base"))]
                    + [words[limit.tag.removeprefix(XS)].format(limit.get("value")) for limit in limits])


def elements(schema):
    """(name, attributes) of each element that has attributes, as the schema orders them."""
    named = {kind.get("name"): kind for kind in schema.findall(f"{XS}complexType")}
    for element in schema.iter(f"{XS}element"):
        kind = named.get(element.get("type"), element.find(f"{XS}complexType"))
        if element.get("name") and kind is not None:
            below = {id(attribute) for inner in kind.iter(f"{XS}element") for attribute in inner.iter(f"{XS}attribute")}
            own = [attribute for attribute in kind.iter(f"{XS}attribute") if id(attribute) not in below]
            if own:
                yield element.get("name"), own


def format_of(file, said, used):
    """One schema as tables, one an element."""
    schema = Xml.parse(MODELS / file).getroot()
    types = {kind.get("name"): kind for kind in schema.findall(f"{XS}simpleType")}
    page = f"<p>{escape(schema.findtext(f'{XS}annotation/{XS}documentation'))}</p>\n"
    missing = []
    for name, attributes in elements(schema):
        rows = []
        for attribute in attributes:
            key = attribute.get("name")
            entry = (TABLES.get(name), key)
            used.add(entry)
            if name in TABLES and entry not in said:
                missing.append(f"{file}: {name}/@{key}")
            inline = attribute.find(f"{XS}simpleType")
            allowed = (describe(types, inline) if inline is not None
                       else restriction(types, attribute.get("type")) if attribute.get("type")
                       else code(attribute.get("fixed", "")))
            rows.append([code(key), "yes" if attribute.get("use") == "required" else "", allowed,
                         escape(said.get(entry, ""))])
        page += f"<h3>{code(name)}</h3>\n" + table(["attribute", "required", "what it holds", "meaning"], rows)
    return page, missing


def parameter_row(parameter):
    limits = " to ".join(code(parameter.get(limit, "...")) for limit in ("min", "max")
                         if parameter.get("min") or parameter.get("max"))
    items = ", ".join(f"{code(item.get('key'))} {escape(item.get('name'))}" for item in parameter.findall("Item"))
    return [code(parameter.get("name")), escape(parameter.get("label", "")), parameter.get("kind"), parameter.get("at"),
            code(parameter.get("default")), limits or items, escape(parameter.get("unit", "")),
            escape(parameter.get("description"))]


def groups():
    """All value groups, file by file."""
    page = ""
    for file in sorted(MODELS.glob("*.xml")):
        root = Xml.parse(file).getroot()
        for group in root.findall("Group") if root.tag == "JobModel" else []:
            band = f", {group.get('band')}" if group.get("band") else ""
            page += f"<h3>{code(group.get('name'))}: {escape(group.get('title'))}{band}</h3>\n"
            page += table(["key", "label", "kind", "at", "default", "range or items", "unit", "what it means"],
                          [parameter_row(parameter) for parameter in group.findall("Parameter")])
            rules = group.findall("Rule")
            if rules:
                page += table(["value", "is enabled while", "is one of"],
                              [[code(rule.get("target")), code(rule.get("source")), code(rule.get("equals"))] for rule in rules])
    return page


def main():
    said = meanings((MODELS / "README.md").read_text())
    used = set()
    job, missing = format_of("job.xsd", said, used)
    model, more = format_of("jobmodel.xsd", said, used)
    schema = Xml.parse(MODELS / "jobmodel.xsd")
    places = {("at", place.get("value")) for place in schema.findall(f"{XS}simpleType[@name='Place']//{XS}enumeration")}
    missing += more + [f"place {place}" for _, place in places - said.keys()]
    stale = [name for head, name in said if head in {"at", *TABLES.values()} and (head, name) not in used | places]
    for fault in [f"{what} is not described." for what in missing] + [f"No schema has {name}." for name in stale]:
        print(f"models/README.md: {fault}", file=sys.stderr)
    page = (f"<!DOCTYPE html>\n<html lang=\"en\"><head><meta charset=\"utf-8\"><title>File formats</title><style>{STYLE}</style></head><body>\n"
            f"<h1>File formats</h1>\n<h2>Job files</h2>\n{job}<h2>Descriptor files</h2>\n{model}"
            f"<h2>Where a value sits</h2>\n<p>Seen from B, the base path of the panel.</p>\n"
            + table(["at", "path"], [[code(name), escape(path)] for (head, name), path in said.items() if head == "at"])
            + f"<h2>All values</h2>\n{groups()}</body></html>\n")
    output = Path(sys.argv[1])
    output.parent.mkdir(parents=True, exist_ok=True)
    output.write_text(page)
    return 1 if missing or stale else 0


if __name__ == "__main__":
    sys.exit(main())
