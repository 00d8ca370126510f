"""The same random calls through the program, through C and through introspection are answered alike:
answers.py KZMUTIL RANDOM_CALLS HEADER LIBRARY LINES LOCALE
"""
import json
import math
import subprocess
import sys

import gi

from kzm_ctypes import Library

gi.require_version('Kzm', '1')
from gi.repository import Kzm  # noqa: E402

KZMUTIL, RANDOM_CALLS, HEADER, LIBRARY, LINES, LOCALE = sys.argv[1:]
NOW = {'dateFromComponents:', 'timeIntervalFromComponents:', 'utcStartForToday'}  # each asks for another now
NUMBERS = {'NaN': math.nan, 'Infinity': math.inf, '-Infinity': -math.inf}
BARE_TEXTS = {'string', 'string|null', 'unit', 'locale'}


class NotForC(Exception):
    """An argument that a C compiler, or a C string, does not take."""


def number(argument):
    if isinstance(argument, str) and argument in NUMBERS:
        return NUMBERS[argument]
    if isinstance(argument, bool) or not isinstance(argument, (int, float)):
        raise NotForC
    return float(argument)


def integer(argument):
    if isinstance(argument, bool) or not isinstance(argument, int) or not -2**63 <= argument < 2**63:
        raise NotForC
    return argument


def text(argument):
    if argument is not None and (not isinstance(argument, str) or '\0' in argument):
        raise NotForC
    return argument


def time_point(argument):
    return math.nan if argument is None else number(argument)


READ = {'double': number, 'integer': integer, 'units': integer, 'time|null': time_point, 'string': text,
        'string|null': text, 'locale': text, 'timezone': text, 'dictionary': json.dumps, 'attributes': json.dumps,
        'attributedstring': json.dumps}


def answer(result, kind, error):
    """The answer as the program gives it, but for the id."""
    if error is not None:
        return {'error': error}
    if kind == 'boolean':
        return {'result': bool(result)}
    if kind in ('double', 'time|null'):
        if math.isnan(result):
            return {'result': 'NaN' if kind == 'double' else None}
        return {'result': ('-' if result < 0 else '') + 'Infinity' if math.isinf(result) else result}
    if result is None or kind in BARE_TEXTS:
        return {'result': result}
    return {'result': json.loads(result)}


def through_c(c, name, arguments, kind):
    encoded = [a.encode() if isinstance(a, str) else a for a in arguments]
    result = getattr(c, name)(*encoded)
    error = c.last_error()
    return answer(result.decode() if isinstance(result, bytes) else result, kind, error and error.decode())


def through_introspection(name, arguments, kind):
    return answer(getattr(Kzm, name)(*arguments), kind, Kzm.last_error())


def main():
    catalogue = {row['name']: row for row in json.loads(subprocess.check_output([KZMUTIL, 'list', '--json']))}
    listed = subprocess.check_output([KZMUTIL, 'list'])
    lines = subprocess.check_output([RANDOM_CALLS, LINES, '20'], input=listed)
    answers = subprocess.check_output([KZMUTIL, 'call', '--locale', LOCALE, '--batch'], input=lines)
    c = Library(HEADER, LIBRARY)
    assert c.set_locale(LOCALE.encode()) == 1
    compared = {'C': 0, 'introspection': 0}
    for line, answered in zip(lines.splitlines(), answers.splitlines(), strict=True):
        try:
            asked = json.loads(line)
            row = catalogue[asked['call']]
            arguments = [READ[p['kind']](a) for p, a in zip(row['parameters'], asked['args'], strict=True)]
        except (ValueError, KeyError, TypeError, NotForC):
            continue
        if isinstance(asked.get('settings'), dict):
            c.use_settings(json.dumps(asked['settings']).encode())
        if asked['call'] in NOW:
            continue
        expected = json.loads(answered)
        del expected['id']
        name = row['c'].removeprefix('kzm_')
        found = {'C': through_c(c, name, arguments, row['result'])}
        nullable = {'string|null', 'dictionary', 'attributes'}
        if not any(a is None and p['kind'] not in nullable for p, a in zip(row['parameters'], arguments)):
            found['introspection'] = through_introspection(name, arguments, row['result'])
        for way, by in found.items():
            if json.dumps(by) != json.dumps(expected):
                sys.exit(f'{LOCALE}: {line.decode()}\n  through {way}: {by}\n  through kzmutil: {expected}')
            compared[way] += 1
    print(f'{LOCALE}: {compared} of {LINES} lines')
    if min(compared.values()) < int(LINES) // 2:
        sys.exit('too few of the lines could be compared')


main()
