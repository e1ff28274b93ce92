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


def test_every_name_of_the_stub_is_in_the_module():
    def found(dotted):
        owner = plurexdata
        for part in dotted.split("."):
            if not hasattr(owner, part):
                return False
            owner = getattr(owner, part)
        return True

    assert sorted(name for name in stub_names() if not found(name)) == []


def runtime_parameters(function, name):
    """The parameter names of each signature pybind11 wrote at the head of a function's docstring."""
    for line in (function.__doc__ or "").splitlines():
        head = line.split(". ", 1)[-1] if line[:1].isdigit() else line
        if not head.startswith(name + "(") or ") -> " not in head:
            continue
        parameters, depth, current = [], 0, ""
        for char in head[len(name) + 1:head.rindex(") -> ")] + ",":
            depth += (char in "[(") - (char in "])")
            if char == "," and depth == 0:
                parameters.append(current.split(":")[0].strip())
                current = ""
            else:
                current += char
        yield [p for p in parameters if p not in ("self", "*args", "**kwargs", "")]


def test_the_stubs_signatures_name_the_modules_parameters():
    """Each method the stub spells out takes the parameters, by name and in order, of one of the module's forms."""
    mismatched = []

    def visit(body, owner, prefix):
        for node in body:
            if isinstance(node, ast.ClassDef) and hasattr(owner, node.name):
                visit(node.body, getattr(owner, node.name), prefix + node.name + ".")
            elif (isinstance(node, ast.FunctionDef) and not node.args.vararg and hasattr(owner, node.name)
                  and (node.name == "__init__" or not node.name.startswith("__"))
                  and not any(getattr(d, "id", "") == "property" for d in node.decorator_list)):
                stub = [a.arg for a in node.args.args if a.arg not in ("self", "cls")]
                forms = list(runtime_parameters(getattr(owner, node.name), node.name))
                if stub not in forms:  # no forms at all: the docstring's format is not the one read here
                    mismatched.append((prefix + node.name, stub, forms))

    visit(ast.parse(STUB.read_text()).body, plurexdata, "")
    assert mismatched == []
