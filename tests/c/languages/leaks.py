"""No call keeps memory, whether it gives something or fails."""
import gi

gi.require_version('Kzm', '1')
from gi.repository import Kzm  # noqa: E402

CALLS = 50000
MOST = 8  # bytes per call: the least that malloc gives is 24, and its own ups and downs stay below

CASES = {
    'a text': lambda i: Kzm.format_memory('{"space": true}', i),
    'data': lambda i: Kzm.memory_data(None, i),
    'two styles': lambda i: Kzm.format_memory_with_attributes('{"attributes-main": {"bold": true}}', i),
    'another text of options each time': lambda i: Kzm.format_memory('{"n": %d}' % i, i),
    'broken options': lambda i: Kzm.format_memory('{', i),
    'an unknown zone': lambda i: Kzm.add_days_timezone(i, 1, 'No/Where'),
    'a unit': lambda i: Kzm.wind_speed_unit(),
    'a pattern': lambda i: Kzm.match_for_expression('12 files', '(\\d+) files'),
}


def resident():
    with open('/proc/self/statm', encoding='ascii') as file:
        return int(file.read().split()[1]) * 4096


for why, call in CASES.items():
    for i in range(2000):
        call(i)
    before = resident()
    for i in range(CALLS):
        call(i)
    grown = (resident() - before) / CALLS
    print(f'{why}: {grown:.2f} bytes a call')
    if grown > MOST:
        raise SystemExit(f'{why} keeps memory')
