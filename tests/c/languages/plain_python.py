"""From Python through ctypes:  plain_python.py HEADER LIBRARY"""
import sys
import unittest

from kzm_ctypes import Library

kzm = Library(sys.argv[1], sys.argv[2])


class Calls(unittest.TestCase):
    def test_each_kind(self):
        self.assertEqual(kzm.format_memory(b'{"space": true}', 1073741824.0), b'1 GB')
        self.assertEqual(kzm.memory_data(None, 1610612736.0), b'{"format": "%@GB", "decimals": 0, "value": 1.5}')
        self.assertEqual(kzm.mps_to_kph(10.0), 36.0)
        self.assertEqual(kzm.does_string_match_expression(b'ab', b'([a-z]{2})'), 1)
        self.assertEqual(kzm.version(), b'1.0.0')

    def test_errors(self):
        self.assertIsNone(kzm.format_memory(b'{', 1.0))
        self.assertEqual(kzm.last_error(), b'malformed JSON at byte 2')
        self.assertIsNone(kzm.format_memory(b'{"a": "\xff"}', 1.0))
        self.assertEqual(kzm.last_error(), b'malformed JSON at byte 8')

    def test_json_knows_no_locale(self):
        import locale
        locale.setlocale(locale.LC_ALL, 'C.UTF-8')
        self.assertEqual(kzm.memory_data(b'{"decimals-gb": [{"value": 2.5, "decimals": 1}]}', 1610612736.0),
                         b'{"format": "%@GB", "decimals": 1, "value": 1.5}')


unittest.main(argv=sys.argv[:1])
