"""Makes mutants of src and counts those that the tests kill. scripts/mutate calls this script.

A mutant differs from src in one place:
  - a comparison is changed: < and <=, > and >=, == and !=
  - a constant is changed: a number by one up or down, a character by one up; true and false
  - an operator is changed: && and ||, + and -, * and /, & and |, << and >>, ++ and --, and the
    corresponding assignments; a "!" is removed
  - a condition without any of these, or a returned value, is negated
  - a statement is removed: an expression, such as a call, or a jump
  - two adjacent arguments of a call, or elements of a braced list, are exchanged
  - a return is moved up: before the preceding statement (if that is a condition, a loop or a
    declaration; otherwise this equals removing it), before the two preceding ones, or to the start
    of its block. The end of a function counts as a return.

Declarations are not mutated: preprocessor directives, static_assert, enumerations and template
arguments. Neither is code whose effect no test can observe: reserved capacity (reserve, Reserve,
constants named Ordinary... or ...Reserve), the order of the arguments of std::min and std::max, and
code for other systems.

A mutant is compiled and linked in a folder of its own, from a copy of the changed file. Then the test
programs run until one fails: first the program of the changed folder, for a header the programs that
are linked first. A test program that fails, crashes or exceeds ten times its usual time kills the
mutant. Mutants that do not compile, and equivalent mutants, for which the optimising compiler
produces the same program, are not counted; in a random selection, others replace them.

The result of each mutant is a line on standard error and in build/mutate/mutants.txt. Standard output
has the survivors and the share of killed mutants.
"""
import collections
import json
import os
import pathlib
import random
import re
import resource
import shlex
import shutil
import signal
import subprocess
import sys
import threading
import time

Workers = 2
NeededShare = 97  # per cent
CpuFactor = 10    # limit of the processor time, as a multiple of that of the unchanged program
LeastCpu = 5      # the lowest limit in seconds, for fast programs
WallFactor = 20   # limit of the elapsed time, as a multiple of the limit of the processor time
MemoryLimit = 4 << 30
FileLimit = 1 << 30

# In the order in which they run, after the program of the folder of the mutant.
Programs = ["read_tests", "write_tests", "attributes_tests", "frame_tests", "text_tests",
            "golden_tests", "api_tests", "docs_tests", "property_tests", "fault_tests"]
Library = "libvexil64.so"

# Results of mutants that are not killed.
Survived = "survived"
NotCompiled = "does not compile"
SameProgram = "the same program"


# ---- Mutants

class Token(collections.namedtuple("Token", "kind text start end")):
    pass


TokenPattern = re.compile(r"""
    (?P<comment>//[^\n]*|/\*.*?\*/)
  | (?P<directive>^[ \t]*\#(?:[^\n]*\\\n)*[^\n]*)
  | (?P<string>"(?:\\.|[^"\\\n])*")
  | (?P<char>'(?:\\.[0-9a-f]*|[^'\\\n])')
  | (?P<number>\d(?:[\w.]|'\d|(?<=[eE])[+-])*)
  | (?P<name>[A-Za-z_]\w*)
  | (?P<sign><=>|<<=|>>=|\.\.\.|::|\+\+|--|->|&&|\|\||[=!<>+\-*/%&|^]=|<<|>>|[^\s\w])
""", re.VERBOSE | re.DOTALL | re.MULTILINE)

Exchanged = {"<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=", "!=": "==",
             "&&": "||", "||": "&&", "+": "-", "-": "+", "*": "/", "/": "*",
             "&": "|", "|": "&", "^": "|", "<<": ">>", ">>": "<<",
             "+=": "-=", "-=": "+=", "|=": "&=", "&=": "|=", "^=": "|=", "*=": "/=", "/=": "*="}
Assignments = {"=", "+=", "-=", "*=", "/=", "%=", "|=", "&=", "^=", "<<=", ">>="}
NoExpression = {"alignas", "auto", "case", "catch", "class", "const", "consteval", "constexpr",
                "constinit", "default", "do", "else", "enum", "extern", "for", "friend", "goto",
                "if", "inline", "mutable", "namespace", "operator", "private", "protected",
                "public", "return", "static", "static_assert", "struct", "switch", "template",
                "thread_local", "try", "typedef", "typename", "union", "unsigned", "using",
                "virtual", "volatile", "while"}
Closing = {"(": ")", "[": "]", "{": "}"}
NoCall = {"if", "for", "while", "switch", "catch", "return", "sizeof", "alignof", "alignas",
          "decltype", "noexcept", "operator", "static_assert"}
AnyOrder = {"min", "max"}  # functions whose arguments may be exchanged

# Lines that only reserve capacity, and an if that does nothing else.
RoomOnly = re.compile(
    r".*\b[rR]eserve\(|.*\b(Ordinary\w+|\w+Reserve) =| *if \(.*\) \{\n.*\breserve\(.*\n *\}\n")

Mutant = collections.namedtuple("Mutant", "file line column start end replacement change")


def tokens_of(text):
    """The tokens of what Linux compiles, without comments and directives."""
    tokens = []
    compiled = [True]
    for match in TokenPattern.finditer(text):
        kind = match.lastgroup
        if kind == "directive":
            directive = match.group().strip()[1:].strip()
            if re.match(r"if", directive):
                compiled.append(compiled[-1] and directive != "ifdef _WIN32")
            elif re.match(r"else", directive):
                compiled[-1] = compiled[-2] and not compiled[-1]
            elif re.match(r"endif", directive):
                compiled.pop()
        elif kind != "comment" and compiled[-1]:
            tokens.append(Token(kind, match.group(), match.start(), match.end()))
    return tokens


class File:
    """A source file and its mutants."""

    def __init__(self, path):
        self.path = path
        self.text = pathlib.Path(path).read_text(encoding="utf-8")
        self.tokens = tokens_of(self.text)
        self.partner = {}       # the token that closes a bracket, and the other way round
        self.in_function = []   # of each token
        self.in_braces = []     # of each token: braces are the innermost brackets around it
        self.is_declaration = [False] * len(self.tokens)
        self.mutants = []
        self.match_brackets()
        self.mark_declarations()
        for at in range(len(self.tokens)):
            if not self.is_declaration[at]:
                self.mutate_token(at)
                self.mutate_statement(at)
                self.mutate_arguments(at)
                self.mutate_return(at)

    def is_text(self, at, *texts):
        return 0 <= at < len(self.tokens) and self.tokens[at].text in texts

    def match_brackets(self):
        """Finds the partner of each bracket, and the tokens inside functions."""
        stack = []
        header = 0  # start of the declaration before a brace
        for at, token in enumerate(self.tokens):
            self.in_function.append(any(inside for _, inside in stack))
            self.in_braces.append(bool(stack) and self.is_text(stack[-1][0], "{"))
            if token.text in Closing and token.kind == "sign":
                inside = False
                if token.text == "{":
                    texts = [t.text for t in self.tokens[header:at]]
                    inside = not {"class", "struct", "enum", "namespace", "union"} & set(texts) and (
                        bool({")", "]", "const", "noexcept", "override"} & set(texts[-1:])))
                    if inside:
                        self.mark_initialisers(header, at)
                    header = at + 1
                stack.append((at, inside))
            elif token.text in Closing.values() and token.kind == "sign":
                start, _ = stack.pop()
                self.partner[start] = at
                self.partner[at] = start
                if token.text == "}":
                    header = at + 1
            elif token.text == ";":
                header = at + 1

    def mark_initialisers(self, header, brace):
        """Treats the initialisers of a constructor as a part of its function."""
        at = header
        while at < brace:
            if self.is_text(at, ":") and self.is_text(at - 1, ")", "noexcept"):
                self.in_function[at:brace] = [True] * (brace - at)
                return
            at = max(at, self.partner.get(at, at)) + 1

    def mark_declarations(self):
        for at, token in enumerate(self.tokens):
            end = None
            if token.text == "static_assert":
                end = self.partner[at + 1]
            elif token.text == "enum":
                end = next(i for i in range(at, len(self.tokens)) if self.is_text(i, "{", ";"))
                end = self.partner.get(end, end)
            elif token.text == "<" and at > 0 and (
                    self.is_text(at - 1, "template", "operator") or
                    self.tokens[at - 1].kind == "name" and self.tokens[at - 1].end == token.start):
                end = self.end_of_arguments(at)
            if end is not None:
                self.is_declaration[at:end + 1] = [True] * (end + 1 - at)

    def end_of_arguments(self, at):
        """The token that ends the template arguments that begin at this one."""
        depth = 0
        while at < len(self.tokens):
            text = self.tokens[at].text
            depth += {"<": 1, ">": -1, ">>": -2}.get(text, 0)
            if depth <= 0:
                return at
            at = self.partner[at] + 1 if text in Closing else at + 1
        return at

    def add(self, first, last, replacement, change):
        """Adds the mutant that has replacement for the tokens from first to last."""
        start = self.tokens[first].start
        end = self.tokens[last].end
        line = self.text.count("\n", 0, start) + 1
        line_start = self.text.rfind("\n", 0, start) + 1
        column = start - line_start + 1
        if not RoomOnly.match(self.text, line_start):
            self.mutants.append(
                Mutant(self.path, line, column, start, end, replacement, change))

    def exchange(self, at, replacement):
        self.add(at, at, replacement, f"{self.tokens[at].text} to {replacement}")

    def is_binary(self, at):
        """Whether a sign is a binary operator: the formatter puts blanks around those."""
        token = self.tokens[at]
        return self.text[token.start - 1].isspace() and self.text[token.end].isspace()

    def mutate_token(self, at):
        token = self.tokens[at]
        if token.kind == "number":
            self.mutate_number(at)
        elif token.kind == "char":
            if re.fullmatch(r"'[ -%(-Z_-}]'", token.text):
                self.exchange(at, f"'{chr(ord(token.text[1]) + 1)}'")
            else:
                self.exchange(at, f"static_cast<char>({token.text} + 1)")
        elif token.text in ("true", "false"):
            self.exchange(at, "false" if token.text == "true" else "true")
        elif token.text in ("++", "--"):
            self.exchange(at, "--" if token.text == "++" else "++")
        elif token.text == "!":
            self.add(at, at, "", "! left out")
        elif token.kind == "sign" and token.text in Exchanged and self.is_binary(at):
            self.exchange(at, Exchanged[token.text])

    def mutate_number(self, at):
        text = self.tokens[at].text
        match = re.fullmatch(r"(0x[0-9a-fA-F]+|0|[1-9]\d*)([uUlL]*)", text)
        if not match:
            self.exchange(at, f"({text} + 1)")
            return
        digits, suffix = match.groups()
        number = int(digits, 0)
        form = hex if digits.startswith("0x") else str
        self.exchange(at, form(number + 1) + suffix)
        if number > 0:
            self.exchange(at, form(number - 1) + suffix)

    def mutate_statement(self, at):
        token = self.tokens[at]
        if token.text == "if" and self.is_text(at + 1, "("):
            close = self.partner[at + 1]
            condition = self.tokens[at + 2:close]
            if not any(t.text in Exchanged or t.text == "!" for t in condition):
                self.negate(at + 2, close - 1, "condition negated")
        if not (self.in_function[at] and self.in_braces[at] and self.begins_statement(at)):
            return
        end = self.end_of_statement(at)
        if end is None:
            return
        if token.text == "return" and end - at > 2 and not self.is_text(at + 1, "{"):
            self.negate(at + 1, end - 1, "returned value negated")
        elif self.is_expression_statement(at, end):
            # Keeps the semicolon, which the code before the statement can require, such as an if.
            self.add(at, end - 1, "", f"\"{self.brief(at, end)}\" left out")

    def mutate_arguments(self, at):
        if not (self.is_text(at, "(", "{") and self.in_function[at] and self.is_list(at)):
            return
        commas = []
        inner = at + 1
        while inner < self.partner[at]:
            if self.is_text(inner, ",") and not self.is_declaration[inner]:
                commas.append(inner)
            inner = self.partner[inner] + 1 if self.tokens[inner].text in Closing else inner + 1
        ends = [at, *commas, self.partner[at]]
        for before, comma, after in zip(ends, ends[1:], ends[2:]):
            first = self.text_of(before + 1, comma - 1)
            second = self.text_of(comma + 1, after - 1)
            # A lambda has a type of its own.
            if first != second and first.startswith("[") == second.startswith("["):
                self.add(before + 1, after - 1, f"{second}, {first}",
                         f"\"{self.brief(before + 1, comma - 1)}\" and "
                         f"\"{self.brief(comma + 1, after - 1)}\" exchanged")

    def is_list(self, at):
        """Whether a bracket contains the arguments of a call or the elements of a list."""
        if self.is_text(at, "{"):
            return not self.is_block(at) and self.partner[at] > at + 1
        if self.is_text(at - 1, ">"):
            return self.is_declaration[at - 1] and not self.is_declaration[at]
        return self.tokens[at - 1].kind == "name" and not self.is_text(at - 1, *NoCall, *AnyOrder)

    def is_block(self, at):
        """Whether a brace begins a block of statements."""
        return any(self.is_text(inner, ";") for inner in range(at, self.partner[at])) or (
            self.is_text(at - 1, ")", "else", "do", "try"))

    def mutate_return(self, at):
        """Makes the mutants that move the return at the end of a block up."""
        if not (self.is_text(at, "{") and self.in_function[at + 1] and self.is_block(at)):
            return
        close = self.partner[at]
        statements = []
        start = at + 1
        while start < close:
            end = self.end_of_any_statement(start)
            if end is None:
                return
            statements = [] if self.is_text(start, "case", "default") else [*statements, start]
            start = end + 1
        if statements and self.is_text(statements[-1], "return"):
            target = statements.pop()
        elif self.is_function_body(at):
            target = close
        else:
            return
        for count in sorted({1, 2, len(statements)}):
            if 0 < count <= len(statements):
                first = statements[-count]
                end = self.end_of_any_statement(first)
                if count > 1 or not self.is_expression_statement(first, end):
                    self.add(first, target - 1, "",
                             f"return moved up to \"{self.brief(first, end)}\"")

    def is_function_body(self, at):
        """Whether a block is that of a function, and not of a condition or a loop."""
        if not self.is_text(at - 1, ")"):
            return not self.is_text(at - 1, "else", "do", "try", ";", "{", "}", ":")
        before = self.partner[at - 1] - 1
        return not self.is_text(before, "if", "constexpr", "for", "while", "switch", "catch")

    def end_of_any_statement(self, at):
        """The last token of a statement, with its nested statements, or of a label."""
        if self.is_text(at, "case", "default"):
            return next(i for i in range(at, len(self.tokens)) if self.is_text(i, ":"))
        if self.is_text(at, "{"):
            return self.partner[at]
        if self.is_text(at, "do", "try"):
            end = self.end_of_any_statement(at + 1)
            while self.is_text(end + 1, "catch"):
                end = self.end_of_any_statement(self.partner[end + 2] + 1)
            return self.end_of_statement(end + 1) if self.is_text(at, "do") else end
        if self.is_text(at, "if", "for", "while", "switch"):
            bracket = at + 1 if self.is_text(at + 1, "(") else at + 2
            end = self.end_of_any_statement(self.partner[bracket] + 1)
            if end is not None and self.is_text(at, "if") and self.is_text(end + 1, "else"):
                return self.end_of_any_statement(end + 2)
            return end
        return self.end_of_statement(at)

    def text_of(self, first, last):
        return self.text[self.tokens[first].start:self.tokens[last].end]

    def begins_statement(self, at):
        if self.is_text(at - 1, ":"):
            first = at - 1
            while not self.is_text(first - 1, ";", "{", "}", ":"):
                first -= 1
            return self.is_text(first, "case", "default")
        return self.is_text(at - 1, ";", "{", "}", "else")

    def negate(self, first, last, change):
        self.add(first, last, f"!({self.text_of(first, last)})", change)

    def brief(self, at, end):
        text = " ".join(self.text_of(at, end).split())
        return text if len(text) <= 60 else text[:57] + "..."

    def end_of_statement(self, at):
        """The semicolon of the statement that begins here; None when a block ends before it."""
        while at < len(self.tokens):
            text = self.tokens[at].text
            if text == ";":
                return at
            if text in Closing.values():
                return None
            at = self.partner[at] + 1 if text in Closing else at + 1
        return None

    def is_expression_statement(self, at, end):
        if self.is_text(at, "break", "continue", "throw"):
            return True
        if self.is_text(at, "return"):
            return end == at + 1
        while self.is_text(at, "++", "--", "*"):
            at += 1
        if self.is_text(at, "("):
            return True
        while self.is_text(at, "::"):
            at += 1
        if self.tokens[at].kind != "name" or self.is_text(at, *NoExpression):
            return False
        at += 1
        while at < end:
            if self.is_text(at, "<") and self.is_declaration[at]:
                at = self.end_of_arguments(at) + 1
            elif self.is_text(at, "::") and self.tokens[at + 1].kind == "name":
                at += 2
            else:
                break
        return at == end or self.is_text(at, ".", "->", "[", "(", "++", "--", *Assignments)


def all_mutants():
    paths = sorted(str(path) for pattern in ("*/*.cpp", "*/*.h")
                   for path in pathlib.Path("src").glob(pattern))
    return [mutant for path in paths for mutant in File(path).mutants]


# ---- The build

class Build:
    """The compile and link commands of the finished build, with which mutants are built."""

    def __init__(self, folder):
        self.folder = os.path.abspath(folder)
        self.compiles = {}  # object -> (source, command)
        commands = json.loads(pathlib.Path(folder, "compile_commands.json").read_text())
        for entry in commands:
            command = shlex.split(entry["command"])
            self.compiles[command[command.index("-o") + 1]] = (entry["file"], command)
        self.links = {}     # program -> command
        for program in [*Programs, Library]:
            line = self.ninja("-t", "commands", "-s", program).strip().splitlines()[-1]
            self.links[program] = [word for word in shlex.split(line) if word not in (":", "&&")]
        self.includers = collections.defaultdict(set)  # file -> objects
        target = None
        for line in self.ninja("-t", "deps").splitlines():
            if line.startswith(" "):
                path = os.path.normpath(os.path.join(self.folder, line.strip()))
                self.includers[path].add(target)
            else:
                target = line.split(":")[0]

    def ninja(self, *arguments):
        return subprocess.run(["ninja", "-C", self.folder, *arguments], check=True, text=True,
                              stdout=subprocess.PIPE).stdout

    def objects_of(self, program):
        return [word for word in self.links[program] if word in self.compiles]

    def objects_with(self, path):
        """The objects that are compiled from a file or include it."""
        path = os.path.abspath(path)
        return self.includers[path] | {
            name for name, (source, _) in self.compiles.items() if source == path}

    def uses_library(self, program):
        return Library in self.links[program]


class DoesNotCompile(Exception):
    pass


class Workshop:
    """A folder in which one mutant at a time is built and run."""

    def __init__(self, build, name):
        self.build = build
        self.folder = os.path.join(build.folder, name)
        self.clear()

    def clear(self):
        shutil.rmtree(self.folder, ignore_errors=True)
        for name in ("sources", "objects", "programs", "files"):
            os.makedirs(os.path.join(self.folder, name))

    def path(self, *names):
        return os.path.join(self.folder, *names)

    def place(self, mutant):
        """Prepares the folder for a mutant and removes all files of the previous one."""
        self.clear()
        self.source = os.path.abspath(mutant.file)
        self.copy = self.path("sources", os.path.relpath(mutant.file, "src"))
        os.makedirs(os.path.dirname(self.copy))
        self.write_copy(mutant, mutant.replacement)
        self.affected = self.build.objects_with(mutant.file)
        self.compiled = {}  # object -> where it is
        self.linked = set()

    def write_copy(self, mutant, replacement=None):
        """Writes the changed file, or the same file without the change."""
        text = pathlib.Path(mutant.file).read_text(encoding="utf-8")
        if replacement is not None:
            text = text[:mutant.start] + replacement + text[mutant.end:]
        pathlib.Path(self.copy).write_text(text, encoding="utf-8")

    def stale(self, program):
        """The objects of a program, or of its library, that the mutant changes."""
        objects = set(self.build.objects_of(program))
        if self.build.uses_library(program):
            objects.update(self.build.objects_of(Library))
        return objects & self.affected

    def run(self, command):
        return subprocess.run(command, cwd=self.build.folder, stdin=subprocess.DEVNULL,
                              stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL).returncode

    def compile(self, name):
        if name not in self.compiled:
            self.compiled[name] = self.path("objects", name.replace("/", "_"))
            self.compile_to(self.compiled[name], name)

    def compile_to(self, target, name, *options):
        _, command = self.build.compiles[name]
        replaced = {name: target, self.source: self.copy}
        command = [replaced.get(word, word) for word in command] + ["-w", *options]
        # The compiler finds a changed header in this folder before that in the tree.
        first = next(at for at, word in enumerate(command) if word.startswith("-I"))
        command.insert(first, "-I" + self.path("sources"))
        if self.run(command) != 0:
            raise DoesNotCompile

    def is_same_program(self, mutant):
        """Whether the optimised library is the same with and without the mutation."""
        def codes(name):
            for replacement in (mutant.replacement, None):
                self.write_copy(mutant, replacement)
                target = self.path("objects", "optimised")
                self.compile_to(target, name, "-O2")
                yield pathlib.Path(target).read_bytes()
        objects = set(self.build.objects_of(Library)) & self.affected
        return all(len(set(codes(name))) == 1 for name in sorted(objects))

    def link(self, program):
        target = self.path("programs", program)
        if program in self.linked:
            return target
        self.linked.add(program)
        stale = [name for name in self.build.objects_of(program) if name in self.affected]
        for name in stale:
            self.compile(name)
        if self.build.uses_library(program):
            self.link(Library)
        if stale:
            replaced = {**self.compiled, program: target, Library: self.path("programs", Library)}
            if self.run([replaced.get(word, word) for word in self.build.links[program]]) != 0:
                raise DoesNotCompile
        else:
            os.link(os.path.join(self.build.folder, program), target)
        return target

    def test(self, program, path, seconds):
        """Runs a test program. Returns None if it passes, else the reason why the mutant is killed."""
        files = self.path("files")
        environment = {**os.environ, "TMPDIR": files}
        command = ["prlimit", f"--cpu={seconds}", f"--as={MemoryLimit}", f"--fsize={FileLimit}",
                   "--core=0", "--", path, "--gtest_brief=1", "--gtest_fail_fast"]
        # In a new process group, so that its child processes can be ended as well.
        process = subprocess.Popen(command, cwd=files, env=environment, stdin=subprocess.DEVNULL,
                                   stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                                   start_new_session=True)
        timer = threading.Timer(seconds * WallFactor, os.killpg, (process.pid, signal.SIGKILL))
        timer.start()
        output = process.communicate()[0].decode("utf-8", "replace")
        timer.cancel()
        if process.returncode == 0:
            return None
        if process.returncode in (-signal.SIGINT, -signal.SIGTERM):
            raise RuntimeError(f"{program} was ended from outside")
        if process.returncode in (-signal.SIGXCPU, -signal.SIGKILL):
            return f"{program}: timeout"
        failed = re.search(r"\[  FAILED  \] ([\w./]+)", output)
        reason = failed.group(1) if failed else f"ended with {process.returncode}"
        return f"{program}: {reason}"


def least_work_first(workshop, mutant):
    """The programs that contain the mutant, in the order in which they run."""
    programs = [program for program in Programs if workshop.stale(program)]
    own = mutant.file.split("/")[1] + "_tests"
    if mutant.file.endswith(".cpp"):
        return sorted(programs, key=lambda program: program != own)
    return sorted(programs, key=lambda program: (
        len([name for name in workshop.stale(program) if not name.startswith("src/")]),
        program != own))


def judge(workshop, mutant, limits):
    """Returns the result of a mutant."""
    try:
        workshop.place(mutant)
        for program in least_work_first(workshop, mutant):
            path = workshop.link(program)
            killed = workshop.test(program, path, limits[program])
            if killed:
                return f"killed by {killed}"
        return SameProgram if workshop.is_same_program(mutant) else Survived
    except DoesNotCompile:
        return NotCompiled


def limits_of(build):
    """The limit of processor seconds for each program. All must pass without a mutant."""
    limits = {}
    workshop = Workshop(build, "unchanged")
    for program in Programs:
        before = resource.getrusage(resource.RUSAGE_CHILDREN)
        failed = workshop.test(program, os.path.join(build.folder, program), 600)
        after = resource.getrusage(resource.RUSAGE_CHILDREN)
        if failed:
            sys.exit(f"The unchanged tests fail: {failed}")
        used = after.ru_utime + after.ru_stime - before.ru_utime - before.ru_stime
        limits[program] = int(max(LeastCpu, used * CpuFactor)) + 1
    return limits


# ---- The run

class Run:
    """Tests mutants in their order until the requested number is counted."""

    def __init__(self, build, mutants, count, report):
        self.build = build
        self.waiting = collections.deque(mutants)
        self.count = count
        self.report = report
        self.limits = limits_of(build)
        self.lock = threading.Lock()
        self.under_way = 0
        self.killed = 0
        self.failed = None
        self.survivors = []

    def next_mutant(self):
        with self.lock:
            done = self.killed + len(self.survivors) + self.under_way
            if not self.waiting or done >= self.count or self.failed:
                return None
            self.under_way += 1
            return self.waiting.popleft()

    def note(self, mutant, outcome):
        with self.lock:
            self.under_way -= 1
            if outcome == Survived:
                self.survivors.append(mutant)
            elif outcome not in (NotCompiled, SameProgram):
                self.killed += 1
            line = f"{described(mutant)}: {outcome}"
            print(f"[{self.killed + len(self.survivors)}/{self.count}] {line}",
                  file=sys.stderr, flush=True)
            print(line, file=self.report, flush=True)

    def work(self, name):
        try:
            workshop = Workshop(self.build, name)
            while (mutant := self.next_mutant()) is not None:
                self.note(mutant, judge(workshop, mutant, self.limits))
            shutil.rmtree(workshop.folder)
        except Exception as error:
            self.failed = error
            raise

    def go(self):
        threads = [threading.Thread(target=self.work, args=(f"mutant-{number}",), daemon=True)
                   for number in range(Workers)]
        for thread in threads:
            thread.start()
        # A worker that finds no mutant ends, although a mutant under way may turn out not to compile.
        # The worker of that mutant then continues alone.
        for thread in threads:
            thread.join()
        if self.failed:
            sys.exit("A worker failed.")


def described(mutant):
    return f"{mutant.file}:{mutant.line}:{mutant.column}: {mutant.change}"


def choose(arguments, folder):
    """Returns the mutants to test and the number of those that must be counted."""
    mutants = all_mutants()
    if arguments == ["--survivors"]:
        wanted = set((folder / "survivors.txt").read_text().splitlines())
        mutants = [mutant for mutant in mutants if described(mutant) in wanted]
    elif arguments and not arguments[0].isdigit():
        mutants = [mutant for mutant in mutants
                   if mutant.file in arguments or f"{mutant.file}:{mutant.line}" in arguments]
    else:
        count = int(arguments[0]) if arguments else 300
        random.Random(int(arguments[1]) if len(arguments) > 1 else 1).shuffle(mutants)
        return mutants, min(count, len(mutants))
    return mutants, len(mutants)


def main(arguments):
    if arguments == ["--programs"]:
        print(*Programs)
        return
    if arguments == ["--list"]:
        for mutant in all_mutants():
            print(described(mutant))
        return
    folder = pathlib.Path(arguments[0])
    mutants, count = choose(arguments[1:], folder)
    if not mutants:
        sys.exit("No mutant matches the arguments.")
    start = time.monotonic()
    with open(folder / "mutants.txt", "w", encoding="utf-8") as report:
        run = Run(Build(folder), mutants, count, report)
        run.go()
    survivors = sorted(described(mutant) for mutant in run.survivors)
    (folder / "survivors.txt").write_text("".join(line + "\n" for line in survivors))
    total = run.killed + len(survivors)
    share = 100 * run.killed / total if total else 0
    for line in survivors:
        print(f"survived: {line}")
    minutes = (time.monotonic() - start) / 60
    print(f"{run.killed} of {total} mutants killed, {share:.1f} %, in {minutes:.0f} minutes")
    if share < NeededShare:
        sys.exit(f"Fewer than {NeededShare} % of the mutants were killed.")


main(sys.argv[1:])
