"""What must hold of the window for those who hear it. Run by tests/gui/vorlesen.sh."""
import os
import subprocess
import sys
import time

from bus import Atspi, Ears, Program, all_of, check, children, failed, key, key_often, states, within

source = os.environ["KW_SRC"]
here = os.environ["HOME"]


def expected_rows(language, project):
    """Names as the model has them."""
    script = f'start\nset Sprache {language}\nload "{project}"\nprint elements\n'
    told = subprocess.run([os.environ["KW_REPLAY"]], input=script, capture_output=True, text=True, check=True).stdout
    return [line.split(" | ")[1] for line in told.splitlines()[1:]]


def one_row_each(language):
    project = f"{source}/samples/familie.kwp"
    p = Program(language, project)
    names = [e.get_name() for e in p.elements()]
    # Ages are those of today: the model's own day in scripts is another.
    ageless = lambda all_names: ["".join(c for c in n if not c.isdigit()) for n in all_names]
    check(f"{language}: one row an element, named by the model", ageless(names) == ageless(expected_rows(language, project)))
    view = p.canvas.get_extents(Atspi.CoordType.SCREEN)
    for e in p.elements():
        box = e.get_extents(Atspi.CoordType.SCREEN)
        inside = view.x <= box.x and view.y <= box.y and box.x + box.width <= view.x + view.width
        check(f"{language}: inside the view", box.width > 0 and box.height > 0 and (inside or "showing" not in states(e)),
              (e.get_name(), box.x, box.y))
    first = p.elements()[0]
    box = first.get_extents(Atspi.CoordType.SCREEN)
    hit = p.canvas.get_component_iface().get_accessible_at_point(box.x + 9, box.y + 9, Atspi.CoordType.SCREEN)
    check("a person is found at its place", hit and hit.get_name() == first.get_name())
    focusable = all_of(p.root, lambda o: {"focusable", "showing"} <= states(o))
    check(f"{language}: all that can have the focus has a name", all(o.get_name() for o in focusable),
          [o.get_role_name() for o in focusable if not o.get_name()])
    bars = all_of(p.root, lambda o: o.get_role_name() in ("menu bar", "tool bar", "status bar", "popup menu", "scroll bar"))
    check(f"{language}: bars and menus have names", all(b.get_name() for b in bars), [b.get_role_name() for b in bars])
    buttons = [o.get_name() for o in focusable if o.get_role_name() in ("push button", "check box")]
    check(f"{language}: no two buttons of one name", len(set(buttons)) == len(buttons), sorted(buttons))
    return p


def walk(p, ears):
    """Arrow keys land on the expected relative, each told once, and one has the focus."""
    key("Home")
    for k, relative in (("Right", "Käthe"), ("Down", "Bärbel"), ("Right", "Gisela"), ("Up", "Heinrich"), ("Down", "Bärbel")):
        heard = [h for h in ears.after(k) if h[0] == "object:state-changed:focused" and h[2]]
        check(f"{k} is told once", len(heard) == 1 and heard[0][1].startswith(relative), heard)
        check(f"{k} gives one element the focus", len(p.focused()) == 1 and p.focused()[0].startswith(relative), p.focused())
    heard = ears.after("Up", "Up")
    notes = [h[1] for h in heard if h[0] == "object:state-changed:showing" and h[3] == "notification"]
    check("where there is nobody it is said", notes and notes[-1].startswith("Keine Eltern"), heard)
    heard = ears.after("Up")
    check("and said again", [h for h in heard if h[3] == "notification"], heard)


def roles_of(p):
    window = children(p.root)[0]
    return [(o.get_role_name(), o.get_name()) for o in all_of(window, lambda o: o.get_role() != Atspi.Role.LIST_ITEM)
            if o.get_role_name() in ("push button", "check box", "menu item", "check menu item")]


def quiet(p, ears):
    """An event tells no name that hasn't changed; what labels show may have."""
    roles = roles_of(p)
    heard = ears.after("Home", "space", "Tab", "Right", "Escape")
    told = [h for h in heard if "accessible-name" in h[0] and h[3] != "label"]
    check("no unchanged name is told", heard and not told, told)
    key("ctrl+j", "Home", "space", "ctrl+0", "Escape")
    check("nobody's role changes with its state", roles_of(p) == roles, set(roles) ^ set(roles_of(p)))


def selection(p, ears):
    key("Escape", "Home")
    heard = ears.after("space")
    check("a selection is told of the element", ("object:state-changed:selected", 1) in [(h[0], h[2]) for h in heard], heard)
    check("without telling all of it anew", not [h for h in heard if h[0].startswith("object:children")], heard)
    check("its description says so when it is come back to",
          within(2, lambda: "selected" in states(p.elements()[0])) and p.elements()[0].get_description().startswith("markiert"))
    key("Escape")


def moving(p, ears):
    """Ten steps are one step of undo, and the run says where it is."""
    key("Escape", "End")
    last = p.focused()
    place = lambda: (e := p.named(last[0])) and e.get_extents(Atspi.CoordType.SCREEN).x
    start = place()
    ears.drain(0.1)
    key_often("alt", "Left", 10)
    heard = ears.drain(1.5)
    check("moving says where", [h for h in heard if h[3] == "notification" and h[1].startswith("verschoben")], heard)
    check("ten steps move", within(5, lambda: place() < start - 50), (start, place()))
    key("ctrl+z")
    check("one undo takes all ten back", within(2, lambda: abs(place() - start) <= 1), (start, place()))


def ask(element, action):
    """Has something done to an element, as a reader does."""
    does = element.get_action_iface()
    known = [does.get_action_name(i) for i in range(does.get_n_actions())]
    begun = time.time()
    does.do_action(known.index(action))
    # A modal form that opens within the question holds the answer for 14 s. A busy machine takes its time otherwise.
    check(f"{action} is answered before what it opens is closed", time.time() - begun < 8, time.time() - begun)


def actions(p, ears):
    """Whoever asks for something is answered at once, also when it opens a form or a menu."""
    ask(p.named("Jörg Großmann"), "Edit")
    check("a form opens", within(3, p.windows))
    key("Escape", pause=0.5)
    ears.drain()
    ask(p.named("Jörg Großmann"), "ShowMenu")
    time.sleep(0.5)
    heard = ears.after("Down")
    check("a menu opens", [h for h in heard if h[0] == "object:state-changed:focused" and h[3] == "menu item"], heard)
    key("Escape", "Escape", pause=0.5)
    ask(p.named("Jörg Großmann"), "Press")
    check("an element can be selected by name", within(2, lambda: "selected" in states(p.named("Jörg Großmann"))))
    key("Escape")


def renaming(p, ears):
    """What says something else is another object, told while the old one was there, and told again."""
    key("Escape", "Home")
    key("Return", pause=0.8)
    heard = ears.after("ctrl+a", "X", "y", "Return", seconds=1)
    told = [h for h in heard if h[1] and h[1].startswith("Xy Großmann")]
    check("a new name is told by its focus", [h for h in told if h[0] == "object:state-changed:focused"], heard)
    check("and by no change of a name", not [h for h in told if "accessible-name" in h[0]], told)
    check("the old one is gone", [h for h in heard if h[0] == "object:children-changed:remove"], heard)


def deleting(p, ears):
    """What is deleted is told, and why nothing is."""
    many = len(p.elements())
    heard = ears.after("Delete", seconds=0.8)
    check("why nothing is deleted is told", [h for h in heard if h[3] == "notification"], heard)
    heard = ears.after("space", "Delete", seconds=0.8)
    notes = [h[1] for h in heard if h[3] == "notification"]
    check("a deletion is told", [n for n in notes if n.startswith("gelöscht: Xy Großmann")], notes)
    check("and has taken it away", len(p.elements()) < many, (many, len(p.elements())))
    key("ctrl+z", pause=0.5)
    check("undone, all are back", len(p.elements()) == many, (many, len(p.elements())))


def many_persons():
    """Nine hundred walk in under a second."""
    project = os.path.join(here, "viele.kwp")
    with open(project, "w", encoding="cp1252") as file:
        file.write("[DEFAULT]\norientation=2\npapersize=9\n[OBJECTS]\n")
        for i in range(900):
            file.write(f"{i}={i + 1:03}_{1 + i % 2}_{1 + i % 45 * 0.6:.1f}_{1 + i // 45 * 0.9:.1f}_0.5_0__0_0_Vorname{i}_Name_1970__\n")
    p = Program("de", project)
    persons = p.elements()
    begun = p.seconds() + time.process_time()  # of both processors' time: others may keep the machine busy
    names = [e.get_name() for e in persons]
    for e in persons:
        states(e)
    took = p.seconds() + time.process_time() - begun
    # A figure for the log; what can fail is growing with the square of their number, which takes minutes.
    check("900 persons can be walked", len(names) == 900 and took < 20, (len(names), took))
    print(f"900 persons: names and states in {took:.2f} s of processor time")
    p.end()


def menus(p, ears):
    """F10 opens the menus so that they are heard; back on the page the element is told, once."""
    heard = ears.after("F10", "Right", "Down", seconds=0.8)
    check("F10 is heard", [h for h in heard if h[0] == "object:state-changed:focused" and h[3] == "menu item"], heard)
    heard = ears.after("Escape", "Escape", "Escape", seconds=0.8)
    told = [h for h in heard if h[0] == "object:state-changed:focused" and h[2] and h[3] == "list item"]
    check("back from the menus one element is told", len(told) == 1, heard)


def first_words(ears):
    """Whoever takes a tool out of a menu by keys is told how keys use it, from the first time on."""
    p = Program("de", f"{source}/samples/familie.kwp")
    heard = ears.after("F10", "Right", "Right", "Down", "m", seconds=1)
    notes = [h[1] for h in heard if h[3] == "notification"]
    check("a tool out of a menu tells of keys", [n for n in notes if "Pfeiltasten" in n], notes)
    p.end()


def searching(ears):
    """Of namesakes the arrow keys choose one from within the search box, which tells who it is and keeps the focus."""
    p = Program("de", f"{source}/tests/scenarios/frmStammbaum/vettern.ged", page=False)
    within(10, p.windows)
    told = [h for h in ears.after("r", "u", seconds=1) if h[0] == "object:state-changed:focused"]
    check("what is found leaves the focus where somebody types", not told, told)
    for partner in ("Partner von Eva Lang (I2)", "Sohn von Emil Meier (I3)"):
        told = [h[1:] for h in ears.after("Down", seconds=1) if h[0] == "object:state-changed:focused" and h[2]]
        check("a choice is told once, by the search box", told == [("Person", 1, "text")], told)
        box = all_of(p.windows()[0], lambda o: o.get_role() == Atspi.Role.TEXT and "focused" in states(o))
        said = [b.get_description() for b in box]
        check("the search box says who is chosen", len(said) == 1 and said[0].endswith(partner), said)
    p.end()


one_row_each("en").end()
program = one_row_each("de")
listening = Ears()
for scene in (walk, quiet, selection, moving, actions, renaming, deleting, menus):
    scene(program, listening)
program.end()
first_words(listening)
searching(listening)
many_persons()
sys.exit(1 if failed else 0)
