"""The program as a user meets it, one scenario a test.

    dbus-run-session -- /usr/bin/python3 scenarios.py SCENARIO PROGRAM ARTIFACTS_DIR

Each scenario starts the program on a desktop of its own, drives it with real
input and reads it back through the accessibility tree and screenshots,
which it keeps in ARTIFACTS_DIR.
"""

import os
import shutil
import sys
import time

from desktop import Desktop, Failure, wait_for

SCENARIOS = {}
# Room for the window at twice the usual density.
LARGE_SCREEN = (2560, 2048)


def scenario(function=None, screen=(1280, 1024)):
    def register(function):
        function.screen = screen
        SCENARIOS[function.__name__] = function
        return function
    return register(function) if function else register


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
    text = program.element("text")
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


def wait_for_text(program, edit, expected):
    wait_for(f"the text {expected!r}", lambda: program.text(edit) == expected)


def wait_for_rows(program, expected):
    wait_for(f"the rows {expected}", lambda: program.rows("split.list") == expected)


def close_and_expect_zero(program, window):
    program.close_window(window)
    expect_equal(program.wait_exit(), 0, "exit code after the window manager's close")


@scenario
def a_preset_reaches_the_text_through_refresh_parameter(desktop, run, artifacts):
    program = run("-Permissions=S-1-5-32-545:v,S-1-5-32-544:d")
    window = program.window(title=TITLE)
    wait_for_rows(program, ["BUILTIN\\Administrators", "BUILTIN\\Users"])
    edit = program.edit("permissionstring")
    program.click(program.row("split.list", "BUILTIN\\Users"))
    choice = program.choice("permset.choice")
    wait_for("the presets to be offered", lambda: program.is_enabled(choice))
    program.click(choice)
    desktop.key("Down", "Down", "Return")
    wait_for("the administrative preset",
             lambda: choice.name == "Administrative permissions")
    desktop.screenshot(os.path.join(artifacts, "preset.png"), window)
    expect_equal(program.text(edit), "S-1-5-32-545:v,S-1-5-32-544:d", "the box before the refresh")
    program.click(program.element("refreshtext"))
    wait_for_text(program, edit, "S-1-5-32-544:d,S-1-5-32-545:f")
    close_and_expect_zero(program, window)


@scenario
def the_typed_add_dialog_adds_a_group(desktop, run, artifacts):
    program = run()
    window = program.window(title=TITLE)
    program.click(program.element("split.buttons.add"))
    picker = program.window(title="Select users or groups")
    desktop.screenshot(os.path.join(artifacts, "picker.png"), picker)
    program.click(program.element("typed"))
    typed = program.window(title="Add user or group")
    desktop.type("adm")
    desktop.key("shift+Tab", "Down")
    wait_for("the group type", lambda: program.choice("type").name == "Group")
    desktop.screenshot(os.path.join(artifacts, "typed-add.png"), typed)
    desktop.key("Return")
    wait_for("the add dialog to close", lambda: typed not in desktop.windows())
    wait_for("the group in the list",
             lambda: [row for row in program.rows("split.list") if row.endswith("\\adm")])
    edit = program.edit("permissionstring")
    program.click(program.element("refreshtext"))
    wait_for_text(program, edit, "%adm:d")
    close_and_expect_zero(program, window)


@scenario
def an_edited_text_reaches_the_list(desktop, run, artifacts):
    program = run("-Permissions=S-1-5-32-544:d")
    window = program.window(title=TITLE)
    wait_for_rows(program, ["BUILTIN\\Administrators"])
    edit = program.edit("permissionstring")
    program.click(edit)
    desktop.key("ctrl+a")
    desktop.type("S-1-5-32-545:v")
    program.click(program.element("refreshui"))
    wait_for_rows(program, ["BUILTIN\\Users"])
    program.click(edit)
    desktop.key("End")
    desktop.type(",%S-1-5-32-546:!q")
    desktop.key("Return")
    wait_for_rows(program, ["BUILTIN\\Users", "BUILTIN\\Guests"])
    close_and_expect_zero(program, window)


@scenario
def the_cloud_scheme_reads_the_text_in_its_own_form_and_reports_a_bad_one(desktop, run, artifacts):
    text = "11111111-2222-3333-4444-555555555555:Sales:d"
    program = run(f"-Permissions={text}")
    window = program.window(title=TITLE)
    program.element("split.list")
    expect_equal(program.rows("split.list"), [], "system entries of a three-field text")
    program.click(program.choice("schemeChoice"))
    desktop.key("Down", "Return")
    wait_for_rows(program, ["Sales"])
    desktop.screenshot(os.path.join(artifacts, "cloud.png"), window)
    expect_equal(program.text(program.edit("permissionstring")), text, "the box keeps its text")
    # A text this scheme can't read is reported in a message box, and the
    # program goes on.
    edit = program.edit("permissionstring")
    program.click(edit)
    desktop.key("End")
    desktop.type("?")
    desktop.key("Return")
    report = wait_for("the message box", lambda: [w for w in desktop.windows() if w != window])[0]
    desktop.screenshot(os.path.join(artifacts, "bad-text.png"), report)
    desktop.key("Return")
    wait_for("the message box to close", lambda: report not in desktop.windows())
    close_and_expect_zero(program, window)


# The elements whose places make the dialog's layout.
MAIN_ELEMENTS = ["schemeChoice", "split.list", "split.buttons.add", "split.buttons.remove",
                 "settings", "permcustom.s.allow.check", "permcustom.q.name", "tl.downarrow",
                 "tl.refreshtext", "tl.refreshui", "tl.uparrow", "main.label",
                 "permissionstring", "aboutLink"]


def laid_out(desktop, run, dpi, artifacts):
    """The main elements' rectangles inside the window at `dpi`, with
    screenshots of every window of the program."""
    desktop.set_density(dpi)
    program = run("-Permissions=S-1-5-32-544:f,%S-1-5-32-545:d")
    window = program.window(title=TITLE)
    origin = program.extents(program.element("s1"))
    rectangles = {}
    for path in MAIN_ELEMENTS:
        x, y, width, height = program.extents(program.element(path))
        rectangles[path] = (x - origin[0], y - origin[1], width, height)
    rectangles["window"] = (0, 0, origin[2], origin[3])
    desktop.screenshot(os.path.join(artifacts, f"main-{dpi}.png"), window)
    program.click(program.element("aboutLink"))
    show_and_dismiss(desktop, program, f"{TITLE} - About",
                     os.path.join(artifacts, f"about-{dpi}.png"))
    add_dialog_screenshots(desktop, program, f"{dpi}", artifacts)
    close_and_expect_zero(program, window)
    return rectangles


def show_and_dismiss(desktop, program, title, path):
    """Waits for the window of `title`, keeps a screenshot in `path` and
    dismisses it with Escape."""
    window = program.window(title=title)
    desktop.screenshot(path, window)
    desktop.key("Escape")
    wait_for(f"{title} to close", lambda: window not in desktop.windows())


def add_dialog_screenshots(desktop, program, suffix, artifacts):
    """The add dialogs of both schemes and the main window under the second."""
    def shot(name):
        return os.path.join(artifacts, f"{name}-{suffix}.png")
    program.click(program.element("split.buttons.add"))
    picker = program.window(title="Select users or groups")
    desktop.screenshot(shot("picker"), picker)
    program.click(program.element("typed"))
    show_and_dismiss(desktop, program, "Add user or group", shot("typed-add"))
    program.click(program.choice("schemeChoice"))
    desktop.key("Down", "Return")
    wait_for("the cloud scheme", lambda: program.choice("schemeChoice").name.startswith("Single"))
    desktop.screenshot(shot("main-cloud"), program.window(title=TITLE))
    program.click(program.element("split.buttons.add"))
    show_and_dismiss(desktop, program, "Add IdP group", shot("cloud-add"))


def inside(inner, outer):
    return (inner[0] >= outer[0] and inner[1] >= outer[1]
            and inner[0] + inner[2] <= outer[0] + outer[2]
            and inner[1] + inner[3] <= outer[1] + outer[3])


@scenario(screen=LARGE_SCREEN)
def the_layout_at_twice_the_density_is_the_same_at_twice_the_size(desktop, run, artifacts):
    normal = laid_out(desktop, run, 96, artifacts)
    double = laid_out(desktop, run, 192, artifacts)
    unscaled = []
    for path, rectangle in normal.items():
        expected = [2 * value for value in rectangle]
        # Text is measured by the font at each size, and rounds its own way.
        slack = [3 + abs(value) // 25 for value in expected]
        if path == "schemeChoice":
            # A closed drop-down is as high as the theme makes it, which
            # doesn't grow in proportion.
            slack[3] = expected[3]
        if not all(abs(a - b) <= s for a, b, s in zip(double[path], expected, slack)):
            unscaled.append(f"{path} at 192 dpi: {double[path]}, at 96 dpi: {rectangle}")
    expect(not unscaled, "\n".join(unscaled))
    for rectangles in (normal, double):
        expect_equal(rectangles["tl.refreshtext"][2], rectangles["tl.refreshui"][2],
                     "widths of the two refresh buttons")
        for path in MAIN_ELEMENTS:
            expect(inside(rectangles[path], rectangles["window"]),
                   f"{path} {rectangles[path]} inside the window {rectangles['window']}")


def main():
    name, program_path, artifacts = sys.argv[1:4]
    if name not in SCENARIOS:
        sys.exit(f"unknown scenario {name}; known: {', '.join(sorted(SCENARIOS))}")
    artifacts = os.path.join(artifacts, name)
    shutil.rmtree(artifacts, ignore_errors=True)
    started = time.monotonic()
    with Desktop(size=SCENARIOS[name].screen) as desktop:
        def run(*arguments, env=None):
            return desktop.launch(program_path, *arguments, env=env)
        try:
            SCENARIOS[name](desktop, run, artifacts)
        except Failure as failure:
            desktop.screenshot(os.path.join(artifacts, "failure.png"))
            sys.exit(f"{name}: {failure}")
    print(f"{name}: passed in {time.monotonic() - started:.1f} s")


if __name__ == "__main__":
    main()
