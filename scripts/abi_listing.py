#!/usr/bin/env python3
"""Lists what programs rely on in the binary interface of the widgets, a fact a line, and compares
two listings:

    abi_listing.py list < ABIDW.xml            the listing of what abidw writes
    abi_listing.py compare PROMISED PRESENT    fails if a promised line is not there any more
    abi_listing.py --self-test

A line is an exported function, with what it returns where abidw tells, the size of a class and how many virtual
functions it declares, the place of a member or of a virtual function, or the value of an enumerator.
A new function, class or enumerator breaks no line.
"""
import subprocess
import sys
import xml.etree.ElementTree as ElementTree

HOME = "lumenkit::widgets::"
SUFFIXES = {"pointer-type-def": "*", "reference-type-def": "&"}


def type_name(types, identifier):
    element = types.get(identifier)
    if element is None:
        return "?"
    if element.tag == "qualified-type-def":
        return "const " + type_name(types, element.get("type-id"))
    if element.tag in SUFFIXES:
        return type_name(types, element.get("type-id")) + SUFFIXES[element.tag]
    return element.get("name", "?")


def class_lines(name, element):
    virtual = [function for function in element.findall("member-function") if function.get("vtable-offset")]
    yield f"class {name}: {element.get('size-in-bits')} bits, {len(virtual)} virtual functions of its own"
    for member in element.findall("data-member"):
        offset = member.get("layout-offset-in-bits")
        if offset:
            yield f"member {name}::{member.find('var-decl').get('name')}: at bit {offset}"
    for function in virtual:
        declared = function.find("function-decl")
        yield f"virtual {declared.get('mangled-name')}: at {function.get('vtable-offset')}"


def element_lines(scope, element):
    """The lines of what is declared in a scope."""
    for child in element:
        name = scope + child.get("name", "")
        if child.tag == "namespace-decl":
            yield from element_lines(name + "::", child)
        elif child.tag in ("abi-instr", "member-type"):
            yield from element_lines(scope, child)
        elif not name.startswith(HOME):
            continue
        elif child.tag == "class-decl":
            if child.get("size-in-bits"):
                yield from class_lines(name, child)
            yield from element_lines(name + "::", child)
        elif child.tag == "enum-decl":
            for value in child.findall("enumerator"):
                yield f"enumerator {name}::{value.get('name')}: {value.get('value')}"


def listing(text):
    root = ElementTree.fromstring(text)
    types = {element.get("id"): element for element in root.iter() if element.get("id")}
    returned = {function.get("mangled-name", ""): type_name(types, function.find("return").get("type-id"))
                for function in root.iter("function-decl") if function.find("return") is not None}
    lines = set(element_lines("", root))
    for symbol in root.iter("elf-symbol"):
        name = symbol.get("name")
        if name.startswith("_Z"):
            lines.add(f"symbol {name}" + (f" returns {returned[name]}" if name in returned else ""))
    names = subprocess.run(["c++filt"], input="\n".join(sorted(lines)), capture_output=True, text=True, check=True)
    return sorted(set(names.stdout.splitlines()))


def broken(promised, present):
    return [line for line in promised if line not in set(present)]


def self_test():
    text = """<abi-corpus><elf-function-symbols>
        <elf-symbol name='_ZN8lumenkit7widgets1A1fEv'/></elf-function-symbols>
        <abi-instr><type-decl name='int' id='i'/><namespace-decl name='lumenkit'>
        <namespace-decl name='widgets'><class-decl name='A' size-in-bits='64' id='a'>
        <member-type><enum-decl name='E' id='e'><enumerator name='x' value='1'/></enum-decl></member-type>
        <data-member layout-offset-in-bits='0'><var-decl name='m' type-id='i'/></data-member>
        <member-function vtable-offset='2'><function-decl name='f' mangled-name='_ZN8lumenkit7widgets1A1fEv'>
        <return type-id='i'/></function-decl></member-function>
        </class-decl></namespace-decl></namespace-decl></abi-instr></abi-corpus>"""
    promised = listing(text)
    assert promised == ["class lumenkit::widgets::A: 64 bits, 1 virtual functions of its own",
                        "enumerator lumenkit::widgets::A::E::x: 1", "member lumenkit::widgets::A::m: at bit 0",
                        "symbol lumenkit::widgets::A::f() returns int", "virtual lumenkit::widgets::A::f(): at 2"], promised
    for old, new in (("'64'", "'128'"), ("value='1'", "value='2'"), ("bits='0'", "bits='8'"),
                     ("name='int'", "name='long'"), ("offset='2'", "offset='3'")):
        assert len(broken(promised, listing(text.replace(old, new)))) == 1, (old, new)
    more = text.replace("<enumerator", "<enumerator name='y' value='2'/><enumerator")
    assert not broken(promised, listing(more))
    print("binary interface: the check tells good from bad")


def main():
    if sys.argv[1:] == ["--self-test"]:
        self_test()
    elif sys.argv[1:2] == ["list"]:
        print(*listing(sys.stdin.read()), sep="\n")
    else:
        promised, present = (open(name, encoding="utf-8").read().splitlines() for name in sys.argv[2:4])
        gone = broken(promised, present)
        for line in gone:
            print(f"no longer: {line}")
        print(f"binary interface: {len(gone)} of {len(promised)} promises broken, "
              f"{len(broken(present, promised))} additions")
        return 1 if gone or not promised else 0
    return 0


sys.exit(main())
