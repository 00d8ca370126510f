-- From Lua through GObject Introspection.
local Kzm = require('lgi').require('Kzm', '1')

assert(Kzm.format_memory('{"space": true}', 1073741824) == '1 GB')
assert(Kzm.format_memory(nil, 1073741824) == '1GB')
assert(Kzm.memory_data(nil, 1610612736) == '{"format": "%@GB", "decimals": 0, "value": 1.5}')
assert(Kzm.mps_to_kph(10) == 36)
assert(Kzm.does_string_match_expression('ab', '([A-Z]{2})') == true)
assert(Kzm.SENSOR_CAPACITY == 100)
assert(Kzm.format_memory('{', 1) == nil)
assert(Kzm.last_error() == 'malformed JSON at byte 2')
