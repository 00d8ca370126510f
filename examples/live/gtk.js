// A live panel with GTK 4 in GNOME's JavaScript:  gjs -m gtk.js
//
// The raw values come from kzmutil, line by line; their texts are made in this process, in the language that the
// environment asks for.
import Gdk from 'gi://Gdk?version=4.0';
import Gio from 'gi://Gio';
import GLib from 'gi://GLib';
import Gtk from 'gi://Gtk?version=4.0';
import Kzm from 'gi://Kzm?version=1';

const STYLE = `
window { background: #191c25; color: #e3e7ee; }
grid { margin: 24px; }
.clock { font-size: 28px; font-weight: bold; margin-bottom: 12px; }
.label { color: #9aa5b6; }
.text { font-size: 18px; font-feature-settings: "tnum"; }
`;
const threeDigits = [{value: 10, decimals: 2}, {value: 100, decimals: 1}];
const options = JSON.stringify({
    'space': true, 'units': true, 'decimals-kb': threeDigits.slice(1), 'decimals-mb': threeDigits,
    'decimals-gb': threeDigits,
});

const sum = values => values.reduce((a, b) => a + b);
const greatest = values => Math.max(...values);

// The topic and the name of a reading, what is made of those of all items, and its text.
const rows = [
    ['network', 'received', sum, Kzm.format_bandwidth],
    ['network', 'sent', sum, Kzm.format_bandwidth],
    ['disks', 'read', sum, Kzm.format_disk_activity],
    ['disks', 'written', sum, Kzm.format_disk_activity],
    ['memory', 'used', ([first]) => first, Kzm.format_memory],
    ['temperatures', 'value', greatest,
        (given, celsius) => Kzm.format_sensor(Kzm.SENSOR_TEMPERATURE, given, celsius)],
];
const command = ['kzmutil', 'monitor', ...new Set(rows.map(row => row[0])), '--output', 'json'];

// The topic's title, and its readings of that name that are known; the machine's talk with itself is none.
function readingsOf(frame, topic, name) {
    const {title, items} = frame.topics.find(entry => entry.topic === topic);
    const all = items.filter(item => item.id !== 'lo').flatMap(item => item.readings);
    return [title, all.filter(reading => reading.name === name && reading.value !== null)];
}

class Panel {
    constructor(application) {
        this.application = application;
        this.grid = new Gtk.Grid({column_spacing: 32, row_spacing: 6});
        this.window = new Gtk.ApplicationWindow({application, child: this.grid});
        this.clock = this.label('clock', 0, 0, 0.0);
        this.labels = rows.map((_, row) => this.label('label', 0, row + 1, 0.0));
        this.texts = rows.map((_, row) => this.label('text', 1, row + 1, 1.0));
        this.window.present();
        const meter = Gio.Subprocess.new(command, Gio.SubprocessFlags.STDOUT_PIPE);
        this.lines = Gio.DataInputStream.new(meter.get_stdout_pipe());
        application.connect('shutdown', () => meter.force_exit());
        this.wait();
    }

    label(style, column, row, xalign) {
        const label = new Gtk.Label({xalign});
        label.add_css_class(style);
        this.grid.attach(label, column, row, 1, 1);
        return label;
    }

    wait() {
        this.lines.read_line_async(GLib.PRIORITY_DEFAULT, null, (lines, result) => {
            const [line] = lines.read_line_finish_utf8(result);
            if (line === null) {
                this.application.quit();
                return;
            }
            this.refresh(JSON.parse(line));
            this.wait();
        });
    }

    refresh(frame) {
        Gtk.Widget.set_default_direction(frame.direction === 'rtl' ? Gtk.TextDirection.RTL : Gtk.TextDirection.LTR);
        this.clock.set_text(new Date().toLocaleTimeString(Kzm.current_locale().replaceAll('_', '-')));
        rows.forEach(([topic, name, together, text], i) => {
            const [title, readings] = readingsOf(frame, topic, name);
            const words = [title, ...readings.slice(0, 1).map(reading => reading.label)].filter(word => word !== '');
            this.labels[i].set_text(words.map(word => `\u2068${word}\u2069`).join(' · '));
            const values = readings.map(reading => reading.value);
            this.texts[i].set_text(values.length > 0 ? text(options, together(values)) : '–');
            this.keepRoom(this.texts[i], readings.map(reading => reading.widest));
        });
    }

    // Readings never move the columns: there is room for the widest text that each can have.
    keepRoom(label, texts) {
        for (const text of texts) {
            const [width] = label.create_pango_layout(text).get_pixel_size();
            const [before] = label.get_size_request();
            label.set_size_request(Math.max(width, before), -1);
        }
    }
}

const application = new Gtk.Application({flags: Gio.ApplicationFlags.NON_UNIQUE});
application.connect('activate', () => {
    const style = new Gtk.CssProvider();
    if (style.load_from_string)  // since GTK 4.12, where the other one asks for a length too
        style.load_from_string(STYLE);
    else
        style.load_from_data(new TextEncoder().encode(STYLE));
    Gtk.StyleContext.add_provider_for_display(Gdk.Display.get_default(), style,
        Gtk.STYLE_PROVIDER_PRIORITY_APPLICATION);
    application.panel = new Panel(application);
});
application.run([]);
