"""A running program as assistive technology meets it: a tree of nodes with roles, names and states.

The tree is read over its bus a level at a time, with all questions at once: one by one, as the
usual library asks, takes seconds on a busy machine, and what that library keeps grows old."""
import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, Gio, GLib

NODE = "org.a11y.atspi.Accessible"
COMPONENT = "org.a11y.atspi.Component"
ACTION = "org.a11y.atspi.Action"
ROOT = "/org/a11y/atspi/accessible/root"
KEPT_STATES = ["showing", "focusable", "focused", "enabled", "selected"]
ON_SCREEN = GLib.Variant("(u)", (0,))
PATIENCE = 20_000  # ms


def _connect():
    session = Gio.bus_get_sync(Gio.BusType.SESSION)
    address = session.call_sync("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress", None,
                                None, Gio.DBusCallFlags.NONE, PATIENCE).unpack()[0]
    kind = (Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT |
            Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION)
    return Gio.DBusConnection.new_for_address_sync(address, kind)


_bus = None


def _ask(questions):
    """The answers to (program, path, interface, method, arguments), None where there is none."""
    global _bus
    _bus = _bus or _connect()
    answers = {}

    def keep(bus, result, index):
        try:
            answers[index] = bus.call_finish(result).unpack()
        except GLib.Error:
            answers[index] = None  # it has gone meanwhile, or can't

    for index, question in enumerate(questions):
        _bus.call(*question, None, Gio.DBusCallFlags.NONE, PATIENCE, None, keep, index)
    while len(answers) < len(questions):
        GLib.MainContext.default().iteration(True)
    return [answers[index] for index in range(len(questions))]


class Node:
    """One node as it was when it was read, with those beneath it that show."""

    def __init__(self, reference, parent, origin):
        self._reference = reference
        self._origin = origin
        self.parent = parent
        self.children = []

    def questions(self):
        name = GLib.Variant("(ss)", (NODE, "Name"))
        return [(*self._reference, "org.freedesktop.DBus.Properties", "Get", name),
                (*self._reference, NODE, "GetRole", None),
                (*self._reference, NODE, "GetState", None),
                (*self._reference, NODE, "GetChildren", None)]

    def take(self, name, role, states, children):
        """The answers, of which the last gives the nodes to ask next."""
        self.name = name[0]
        self.role = Atspi.role_get_name(Atspi.Role(role[0]))
        bits = states[0][0] | states[0][1] << 32
        self.states = {state for state in KEPT_STATES
                       if bits >> getattr(Atspi.StateType, state.upper()) & 1}
        return [Node(reference, self, self._origin) for reference in children[0]]

    def __eq__(self, other):
        return isinstance(other, Node) and self._reference == other._reference

    def __iter__(self):
        """This node and all beneath it, in the tree's order."""
        yield self
        for child in self.children:
            yield from child

    def __str__(self):
        told = ", ".join(sorted(self.states - {"showing", "enabled"}))
        return f"{self.role} “{self.name}”" + (f" ({told})" if told else "")

    @property
    def path(self):
        return (f"{self.parent.path} > " if self.parent else "") + str(self)

    @property
    def outline(self):
        lines = [str(self)]
        for child in self.children:
            lines += ["  " + line for line in child.outline.splitlines()]
        return "\n".join(lines)

    @property
    def rectangle(self):
        """Left, top, width and height on the screen, now; none when it has gone."""
        answer = _ask([(*self._reference, COMPONENT, "GetExtents", ON_SCREEN)])[0]
        if answer is None:
            return None
        (left, top), (x, y, width, height) = self._origin(), answer[0]
        return left + x, top + y, width, height

    @property
    def middle(self):
        x, y, width, height = self.rectangle
        return x + width // 2, y + height // 2

    @property
    def actions(self):
        answer = _ask([(*self._reference, ACTION, "GetActions", None)])[0]
        return [name for name, _, _ in answer[0]] if answer else []

    def act(self, action="Press"):
        """Does what assistive technology asks for."""
        number = GLib.Variant("(i)", (self.actions.index(action),))
        assert _ask([(*self._reference, ACTION, "DoAction", number)])[0] == (True,), str(self)


def application(pid, origin):
    """All of a process that shows, from the application down; none while it has told of nothing.

    `origin` gives the point on the screen that the process tells its places from."""
    programs = _ask([("org.a11y.atspi.Registry", ROOT, NODE, "GetChildren", None)])[0]
    programs = programs[0] if programs else []
    pids = _ask([("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                  "GetConnectionUnixProcessID", GLib.Variant("(s)", (name,)))
                 for name, _ in programs])
    found = [reference for reference, its in zip(programs, pids) if its == (pid,)]
    return _read(Node(found[-1], None, origin)) if found else None


def _read(root):
    level = [root]
    while level:
        answers = iter(_ask([question for node in level for question in node.questions()]))
        below = []
        for node in level:
            told = [next(answers) for _ in node.questions()]
            if None in told:
                continue  # it has gone meanwhile
            children = node.take(*told)
            if "showing" in node.states:
                below += children
                if node.parent:
                    node.parent.children.append(node)
        level = below
    return root if hasattr(root, "states") else None


def focused(tree):
    """The innermost that has the keyboard."""
    return next((node for node in reversed(list(tree)) if "focused" in node.states), None)


class Alerts:
    """What assistive technology is told to say at once, from now on: a list that fills."""

    def __init__(self):
        self.said = []
        self._listener = Atspi.EventListener.new(self._hear)
        self._listener.register("object:property-change:accessible-name")

    def end(self):
        self._listener.deregister("object:property-change:accessible-name")

    def _hear(self, event):
        try:
            # The text within an alert stays longer than the alert's own name.
            around = [event.source, event.source.get_parent()]
            if any(node and node.get_role() == Atspi.Role.ALERT for node in around):
                self.said.append(event.source.get_name())
        except GLib.Error:
            pass
