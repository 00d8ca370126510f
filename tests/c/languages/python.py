"""From Python through GObject Introspection: with the conveniences when their folder is given, and without."""
import sys
import threading
import unittest

import gi.overrides
if len(sys.argv) > 1:
    gi.overrides.__path__.insert(0, sys.argv.pop())
    WITH_CONVENIENCES = True
else:
    WITH_CONVENIENCES = False

gi.require_version('Kzm', '1')
from gi.repository import Kzm  # noqa: E402

RULES = '{"decimals-mb": [{"value": 10, "decimals": 2}], "space": true}'


class Plain(unittest.TestCase):
    """What holds with and without conveniences."""

    def test_texts(self):
        cases = [
            ('none', Kzm.format_memory(None, 1073741824), '1GB'),
            ('a text', Kzm.format_memory('{"space": true}', 1073741824.0), '1 GB'),
            ('rules', Kzm.format_bandwidth(RULES, 1500000.0), '1.43 MB/s'),
            ('an unknown key', Kzm.format_memory('{"unknown": [1]}', 1073741824.0), '1GB'),
            ('not a number', Kzm.format_memory(None, float('nan')), 'NaNPB'),
            ('a sensor', Kzm.format_sensor(Kzm.SENSOR_FAN, '{"units": true}', 1200.0), '1,200rpm'),
            ('a unit', Kzm.wind_speed_unit(), 'milesPerHour'),
            ('fraction digits', Kzm.format_decimal(1, 1, 2), '2.0'),
            ('the version', Kzm.version(), Kzm.VERSION),
        ]
        for why, text, expected in cases:
            self.assertEqual(text, expected, why)

    def test_data(self):
        self.assertEqual(Kzm.memory_data(None, 1610612736.0), '{"format": "%@GB", "decimals": 0, "value": 1.5}')
        self.assertIsNone(Kzm.sensor_data(99, None, 1.0))
        self.assertIsNone(Kzm.last_error())

    def test_numbers_and_truth(self):
        self.assertEqual(Kzm.mps_to_kph(10.0), 36.0)
        self.assertEqual(Kzm.add_days_timezone(0.0, 2, 'Europe/Paris'), 172800.0)
        self.assertIs(Kzm.does_string_match_expression('ab', '([A-Z]{2})'), True)
        self.assertIs(Kzm.does_string_match_expression('a1', '([A-Z]{2})'), False)
        self.assertEqual(Kzm.components(0.0, Kzm.CALENDAR_UNIT_YEAR | Kzm.CALENDAR_UNIT_DAY),
                         '{"year": 1970, "day": 1}')

    def test_arguments_that_python_refuses(self):
        with self.assertRaises(TypeError):
            Kzm.format_memory()
        with self.assertRaises(TypeError):
            Kzm.match_for_expression(None, '(a)')
        with self.assertRaises(UnicodeEncodeError):
            Kzm.match_for_expression('\udc80', '(a)')

    def test_what_is_for_programs_alone_is_hidden(self):
        for name in ('free', 'set_locale', 'set_time_zone', 'use_settings'):
            self.assertFalse(hasattr(Kzm, name), name)

    def test_threads(self):
        wrong = []

        def calls(number):
            options = '{"space": true, "n": %d}' % number
            wrong.extend(i for i in range(2000) if Kzm.format_memory(options, 1073741824.0) != '1 GB')

        threads = [threading.Thread(target=calls, args=(i,)) for i in range(4)]
        for thread in threads:
            thread.start()
        for thread in threads:
            thread.join()
        self.assertEqual(wrong, [])


@unittest.skipIf(WITH_CONVENIENCES, 'errors are raised')
class Without(unittest.TestCase):
    def test_errors(self):
        self.assertIsNone(Kzm.format_memory('{', 1.0))
        self.assertEqual(Kzm.last_error(), 'malformed JSON at byte 2')

    def test_a_dictionary_is_refused(self):
        with self.assertRaises(TypeError):
            Kzm.format_memory({'space': True}, 1.0)


@unittest.skipUnless(WITH_CONVENIENCES, 'without conveniences')
class With(unittest.TestCase):
    def test_dictionaries(self):
        rules = [{'value': 10, 'decimals': 2}]
        self.assertEqual(Kzm.format_bandwidth({'decimals-mb': rules, 'space': True}, 1500000.0), '1.43 MB/s')
        self.assertEqual(
            Kzm.replace_string_with_string_attributes({'runs': [{'text': '%@ GB'}]}, '%@', '3', {'bold': True}),
            '{"text": "3 GB", "runs": [{"text": "3", "attributes": {"bold":true}}, '
            '{"text": " GB", "attributes": null}]}')

    def test_errors(self):
        for call, error in [(lambda: Kzm.format_memory('{', 1.0), 'malformed JSON at byte 2'),
                            (lambda: Kzm.format_memory([], 1.0), 'expected an object or null, not array'),
                            (lambda: Kzm.format_memory({'a': float('nan')}, 1.0), 'malformed JSON at byte 7'),
                            (lambda: Kzm.add_days_timezone(0.0, 1, 'No/Where'), 'no time zone is named "No/Where"')]:
            with self.assertRaises(ValueError) as raised:
                call()
            self.assertEqual(str(raised.exception), error)


unittest.main()
