"""Reads what the program exported, with readers that are not its own, and prints it as JSON."""

import csv
import datetime
import json
import sys
import zipfile


def read_zip(path):
    with zipfile.ZipFile(path) as package:
        if package.testzip() is not None:
            sys.exit("a damaged entry")
        return {name: package.read(name).hex() for name in package.namelist()}


def read_csv(path):
    with open(path, newline="", encoding="utf-8-sig") as table:
        return list(csv.DictReader(table, strict=True))


def unfolded(path):
    with open(path, "rb") as calendar:
        text = calendar.read()
    if any(len(line) > 75 for line in text.split(b"\r\n")):
        sys.exit("a line that is too long")
    if text.replace(b"\r\n", b"").count(b"\n"):
        sys.exit("a line that ends without carriage return")
    return text.decode("utf-8").replace("\r\n ", "").split("\r\n")


def unescaped(value):
    result, escape = "", False
    for letter in value:
        if escape:
            result += "\n" if letter in "nN" else letter
        elif letter != "\\":
            result += letter
        escape = letter == "\\" and not escape
    return result


def moment(value):
    # Without a zone: neither Z at the end nor a TZID parameter.
    return datetime.datetime.strptime(value, "%Y%m%dT%H%M%S").isoformat()


def read_ics(path):
    lines = unfolded(path)
    if lines[0] != "BEGIN:VCALENDAR" or lines[-2:] != ["END:VCALENDAR", ""]:
        sys.exit("no calendar")
    events, event = [], None
    for line in lines:
        name, _, value = line.partition(":")
        if line == "BEGIN:VEVENT":
            event = {}
        elif line == "END:VEVENT":
            events.append(event)
            event = None
        elif event is not None and name in ("DTSTART", "DTEND"):
            event[name] = moment(value)
        elif event is not None:
            event[name] = unescaped(value)
    uids = [entry["UID"] for entry in events]
    if len(uids) != len(set(uids)) or not all("DTSTAMP" in entry for entry in events):
        sys.exit("events without an identity or a stamp")
    return sorted(events, key=lambda entry: entry["DTSTART"])


print(json.dumps({"zip": read_zip, "csv": read_csv, "ics": read_ics}[sys.argv[1]](sys.argv[2])))
