"""The program as a user meets it, one scenario a test.

    dbus-run-session -- /usr/bin/python3 scenarios.py SCENARIO PROGRAM ARTIFACTS_DIR

Each scenario starts the program on a desktop of its own, drives it with real
input and reads it back through the accessibility tree and screenshots,
which it keeps in ARTIFACTS_DIR.
"""

import os
import sys
import time

from desktop import Desktop, Failure, wait_for

SCENARIOS = {}


def scenario(function):
    SCENARIOS[function.__name__] = function
    return function


def expect(condition, message):
    if not condition:
        raise Failure(message)


def expect_equal(actual, expected, what):
    expect(actual == expected, f"{what}: {actual!r}, expected {expected!r}")


def expect_no_window_and_exit(desktop, program, code):
    expect_equal(program.wait_exit(), code, "exit code")
    expect_equal(desktop.windows(), [], "windows left on the screen")


@scenario
def help_shows_no_window_and_exits_zero(desktop, run, artifacts):
    program = run("-help")
    expect_no_window_and_exit(desktop, program, 0)


@scenario
def unknown_argument_shows_no_window_and_exits_one(desktop, run, artifacts):
    program = run("-NoSuchParameter=1")
    expect_no_window_and_exit(desktop, program, 1)
    expect("Bad argument '-NoSuchParameter=1'" in program.stderr(), program.stderr())


TITLE = "Ostrand Permissions Creator"


@scenario
def closing_the_window_ends_with_zero(desktop, run, artifacts):
    program = run()
    window = program.window(title=TITLE)
    expect_equal(program.text(program.edit("permissionstring")), "", "the edit box at the start")
    desktop.screenshot(os.path.join(artifacts, "main.png"), window)
    program.close_window(window)
    expect_equal(program.wait_exit(), 0, "exit code after the window manager's close")


@scenario
def about_link_shows_the_box_and_closing_it_leaves_the_program_running(desktop, run, artifacts):
    program = run()
    main_window = program.window(title=TITLE)
    program.click(program.element("aboutLink"))
    about = program.window(title=f"{TITLE} - About")
    text = program.element("text", root=None)
    desktop.screenshot(os.path.join(artifacts, "about.png"), about)
    expect(program.extents(text)[2] > 0, "the About box shows its text")
    desktop.key("Escape")
    wait_for("the About box to close", lambda: about not in desktop.windows())
    expect(main_window in desktop.windows(), "the main window stays")
    program.close_window(main_window)
    expect_equal(program.wait_exit(), 0, "exit code")


@scenario
def ctrl_a_in_the_edit_box_selects_the_whole_text(desktop, run, artifacts):
    text = "S-1-5-32-544:f,%S-1-5-32-545:d"
    program = run(f"-Permissions={text}")
    window = program.window(title=TITLE)
    edit = program.edit("permissionstring")
    expect_equal(program.text(edit), text, "the edit box shows the argument")
    program.click(edit)
    desktop.key("End", "ctrl+a")
    wait_for("the whole text selected", lambda: program.selection(edit) == (0, len(text)))
    desktop.type("S-1-5-32-546:v")
    wait_for("the typed text in place of the selection",
             lambda: program.text(edit) == "S-1-5-32-546:v")
    program.close_window(window)
    expect_equal(program.wait_exit(), 0, "exit code")


def main():
    name, program_path, artifacts = sys.argv[1:4]
    if name not in SCENARIOS:
        sys.exit(f"unknown scenario {name}; known: {', '.join(sorted(SCENARIOS))}")
    started = time.monotonic()
    with Desktop() as desktop:
        def run(*arguments, env=None):
            return desktop.launch(program_path, *arguments, env=env)
        try:
            SCENARIOS[name](desktop, run, os.path.join(artifacts, name))
        except Failure as failure:
            desktop.screenshot(os.path.join(artifacts, name, "failure.png"))
            sys.exit(f"{name}: {failure}")
    print(f"{name}: passed in {time.monotonic() - started:.1f} s")


if __name__ == "__main__":
    main()
