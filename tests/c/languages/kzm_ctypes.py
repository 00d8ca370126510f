"""The C library through ctypes, its types read from the header."""
import ctypes
import re

_TYPES = {'double': ctypes.c_double, 'int64_t': ctypes.c_int64, 'const char*': ctypes.c_char_p,
          'void*': ctypes.c_void_p}
_RESULTS = {**_TYPES, 'int': ctypes.c_int, 'void': None, 'char*': ctypes.c_void_p}  # a pointer, so that it can be freed


class Library:
    """Its functions without their prefix. A result that is a text is copied and given back."""

    def __init__(self, header, library):
        self._library = ctypes.CDLL(library)
        with open(header, encoding='utf-8') as file:
            prototypes = re.findall(r'^((?:const )?\w+\*?) kzm_(\w+)\(([^)]*)\);', file.read(), re.MULTILINE)
        for result, name, parameters in prototypes:
            function = getattr(self._library, 'kzm_' + name)
            function.restype = _RESULTS[result]
            function.argtypes = [_TYPES[p.strip().rpartition(' ')[0]] for p in parameters.split(',') if p != 'void']
            setattr(self, name, self._copying(function) if result == 'char*' else function)

    def _copying(self, function):
        def call(*arguments):
            result = function(*arguments)
            if result is None:
                return None
            copy = ctypes.string_at(result)
            self.free(result)
            return copy
        return call
