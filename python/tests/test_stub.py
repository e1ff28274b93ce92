import ast
import pathlib

import plurexdata

STUB = pathlib.Path(__file__).resolve().parent.parent / "plurexdata.pyi"


def stub_names():
    """The names the stub declares at its top level and in its classes, with their nesting."""
    declared = set()

    def visit(body, prefix):
        for node in body:
            if isinstance(node, (ast.ClassDef, ast.FunctionDef)):
                declared.add(prefix + node.name)
                if isinstance(node, ast.ClassDef):
                    visit(node.body, prefix + node.name + ".")
            elif isinstance(node, ast.AnnAssign):
                declared.add(prefix + node.target.id)
            elif isinstance(node, ast.Assign):
                declared.update(prefix + target.id for target in node.targets)

    visit(ast.parse(STUB.read_text()).body, "")
    return declared


def public(owner, prefix):
    """The public names of a module, or those a class defines itself (not those it inherits)."""
    names = vars(owner) if isinstance(owner, type) else dir(owner)
    for name in names:
        if not name.startswith("_"):
            yield prefix + name, getattr(owner, name)


def test_every_public_name_of_the_module_is_in_the_stub():
    declared = stub_names()
    missing = []
    for name, value in public(plurexdata, ""):
        if name not in declared:
            missing.append(name)
        if isinstance(value, type) and not issubclass(value, int):  # enum members are listed as values
            missing += [inner for inner, _ in public(value, name + ".") if inner not in declared]
    for name, _ in public(plurexdata.essences, "essences."):
        if name not in declared:
            missing.append(name)
    assert missing == []
