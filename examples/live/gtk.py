#!/usr/bin/env python3
"""A live panel with GTK 4.

The raw values come from kzmutil, line by line; their texts are made in this process, in the language that the
environment asks for."""
import json
import sys

import gi
gi.require_version('Gdk', '4.0')
gi.require_version('Gtk', '4.0')
gi.require_version('Kzm', '1')
from gi.repository import Gdk, Gio, GLib, Gtk, Kzm  # noqa: E402

STYLE = '''
window { background: #191c25; color: #e3e7ee; }
grid { margin: 24px; }
.clock { font-size: 28px; font-weight: bold; margin-bottom: 12px; }
.label { color: #9aa5b6; }
.text { font-size: 18px; font-feature-settings: "tnum"; }
'''
THREE_DIGITS = [{'value': 10, 'decimals': 2}, {'value': 100, 'decimals': 1}]
OPTIONS = json.dumps({'space': True, 'units': True, 'decimals-kb': THREE_DIGITS[1:], 'decimals-mb': THREE_DIGITS,
                      'decimals-gb': THREE_DIGITS})


def temperature(options, celsius):
    return Kzm.format_sensor(Kzm.SENSOR_TEMPERATURE, options, celsius)


# The topic and the name of a reading, what is made of those of all items, and its text.
ROWS = [
    ('network', 'received', sum, Kzm.format_bandwidth),
    ('network', 'sent', sum, Kzm.format_bandwidth),
    ('disks', 'read', sum, Kzm.format_disk_activity),
    ('disks', 'written', sum, Kzm.format_disk_activity),
    ('memory', 'used', next, Kzm.format_memory),
    ('temperatures', 'value', max, temperature),
]
COMMAND = ['kzmutil', 'monitor', *dict.fromkeys(row[0] for row in ROWS), '--output', 'json']


def readings_of(frame, topic, name):
    """The title of the topic, and its readings of that name that are known; the machine's talk with itself is none."""
    shown = next(entry for entry in frame['topics'] if entry['topic'] == topic)
    found = [reading for item in shown['items'] if item['id'] != 'lo' for reading in item['readings']]
    return shown['title'], [reading for reading in found if reading['name'] == name and reading['value'] is not None]


class Panel:
    def __init__(self, application):
        self.application = application
        self.grid = Gtk.Grid(column_spacing=32, row_spacing=6)
        self.window = Gtk.ApplicationWindow(application=application, child=self.grid)
        self.clock = self.label('clock', 0, 0, 0.0)
        self.labels = [self.label('label', 0, row + 1, 0.0) for row in range(len(ROWS))]
        self.texts = [self.label('text', 1, row + 1, 1.0) for row in range(len(ROWS))]
        self.window.present()
        meter = Gio.Subprocess.new(COMMAND, Gio.SubprocessFlags.STDOUT_PIPE)
        self.lines = Gio.DataInputStream.new(meter.get_stdout_pipe())
        self.application.connect('shutdown', lambda _: meter.force_exit())
        self.wait()

    def label(self, style, column, row, alignment):
        label = Gtk.Label(xalign=alignment)
        label.add_css_class(style)
        self.grid.attach(label, column, row, 1, 1)
        return label

    def wait(self):
        self.lines.read_line_async(GLib.PRIORITY_DEFAULT, None, self.on_line)

    def on_line(self, lines, result):
        line, _ = lines.read_line_finish_utf8(result)
        if line is None:
            self.application.quit()
            return
        self.refresh(json.loads(line))
        self.wait()

    def refresh(self, frame):
        is_right_to_left = frame['direction'] == 'rtl'
        Gtk.Widget.set_default_direction(Gtk.TextDirection.RTL if is_right_to_left else Gtk.TextDirection.LTR)
        self.clock.set_text(GLib.DateTime.new_now_local().format('%X'))
        for (topic, name, together, text), label, value in zip(ROWS, self.labels, self.texts):
            title, readings = readings_of(frame, topic, name)
            words = [title] + [reading['label'] for reading in readings[:1] if reading['label']]
            label.set_text(' · '.join(f'\u2068{word}\u2069' for word in words))
            values = [reading['value'] for reading in readings]
            value.set_text(text(OPTIONS, together(iter(values))) if readings else '–')
            self.keep_room(value, [reading['widest'] for reading in readings])

    def keep_room(self, label, texts):
        """Readings never move the columns: there is room for the widest text that each can have."""
        for text in texts:
            width, _ = label.create_pango_layout(text).get_pixel_size()
            label.set_size_request(max(width, label.get_size_request().width), -1)


def on_activate(application):
    style = Gtk.CssProvider()
    style.load_from_data(STYLE.encode())
    Gtk.StyleContext.add_provider_for_display(Gdk.Display.get_default(), style,
                                              Gtk.STYLE_PROVIDER_PRIORITY_APPLICATION)
    application.panel = Panel(application)


application = Gtk.Application(flags=Gio.ApplicationFlags.NON_UNIQUE)
application.connect('activate', on_activate)
sys.exit(application.run())
