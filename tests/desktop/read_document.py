#!/usr/bin/env python3
"""Reads an OpenDocument text with nothing but an unpacker and an XML reader: a line a paragraph, as style, outline level
(0 for none) and text, with a tab where the document has one. Fails where the package is not what the format asks for."""

import sys
import zipfile
from xml.etree import ElementTree

MIME = "application/vnd.oasis.opendocument.text"
TEXT = "{urn:oasis:names:tc:opendocument:xmlns:text:1.0}"
OFFICE = "{urn:oasis:names:tc:opendocument:xmlns:office:1.0}"
STYLE = "{urn:oasis:names:tc:opendocument:xmlns:style:1.0}"
FO = "{urn:oasis:names:tc:opendocument:xmlns:xsl-fo-compatible:1.0}"
MANIFEST = "{urn:oasis:names:tc:opendocument:xmlns:manifest:1.0}"


def words(element):
    text = element.text or ""
    for child in element:
        if child.tag == TEXT + "tab":
            text += "\t"
        elif child.tag == TEXT + "s":
            text += " " * int(child.get(TEXT + "c", "1"))
        else:
            raise SystemExit(f"an element that no line of a proposal has: {child.tag}")
        text += child.tail or ""
    return text


def main():
    with zipfile.ZipFile(sys.argv[1]) as package:
        if package.testzip() is not None:
            raise SystemExit("a damaged part")
        first = package.infolist()[0]
        if first.filename != "mimetype" or first.compress_type != zipfile.ZIP_STORED or first.extra:
            raise SystemExit("the kind of the document does not stand first and unpacked")
        if package.read("mimetype").decode() != MIME:
            raise SystemExit("another kind of document")
        told = {entry.get(MANIFEST + "full-path") for entry in ElementTree.fromstring(package.read("META-INF/manifest.xml"))}
        there = set(package.namelist()) - {"mimetype", "META-INF/manifest.xml"}
        if told != there | {"/"}:
            raise SystemExit(f"the list of parts is wrong: {sorted(told)}")
        styles = ElementTree.fromstring(package.read("styles.xml"))
        page = styles.find(f".//{STYLE}page-layout-properties")
        if (page.get(FO + "page-width"), page.get(FO + "page-height")) != ("8.5in", "11in"):
            raise SystemExit("no letter page")
        body = ElementTree.fromstring(package.read("content.xml")).find(f"{OFFICE}body/{OFFICE}text")
    for paragraph in body:
        if paragraph.tag not in (TEXT + "p", TEXT + "h"):
            raise SystemExit(f"no paragraph: {paragraph.tag}")
        level = paragraph.get(TEXT + "outline-level", "0") if paragraph.tag == TEXT + "h" else "0"
        sys.stdout.buffer.write(f"{paragraph.get(TEXT + 'style-name')}|{level}|{words(paragraph)}\n".encode())


if __name__ == "__main__":
    main()
