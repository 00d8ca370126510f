"""Kzm for Python: options, attributes and styled texts may be given as dictionaries and lists, and errors are raised.

Made by tools/bindings of the catalogue of callables and of c/introspection/overrides/Kzm.py.in: change these.
"""
import functools
import json

from gi.module import get_introspection_module

# Which arguments of each function are JSON texts.
_JSON_ARGUMENTS = {
    "decimal_formatter_with_fractions": [],
    "decimal_formatter_with_maximum": [],
    "posix_locale": [],
    "format_number": [0],
    "localized_string_from_table_in_bundle": [],
    "format_percentage": [0],
    "format_percentage_with_attributes": [0],
    "celcius_to_fahrenheit": [],
    "fahrenheit_to_celcius": [],
    "celcius_to_kelvin": [],
    "kelvin_to_celcius": [],
    "inch_to_cm": [],
    "cm_to_inch": [],
    "inch_to_mm": [],
    "mm_to_inch": [],
    "mm_to_cm": [],
    "cm_to_mm": [],
    "miles_to_km": [],
    "km_to_miles": [],
    "mps_to_kph": [],
    "kph_to_mps": [],
    "mps_to_mph": [],
    "mph_to_mps": [],
    "mps_to_knots": [],
    "inch_to_millibar": [],
    "wind_speed_unit": [],
    "sensors_temperature_unit": [],
    "weather_temperature_unit": [],
    "distance_unit": [],
    "pressure_unit": [],
    "rain_unit": [],
    "snow_unit": [],
    "bandwidth_data": [0],
    "format_bandwidth": [0],
    "format_bandwidth_with_attributes": [0],
    "disk_activity_data": [0],
    "format_disk_activity": [0],
    "format_disk_activity_with_attributes": [0],
    "space_data": [0],
    "format_space": [0],
    "format_space_with_attributes": [0],
    "memory_data": [0],
    "format_memory": [0],
    "format_memory_with_attributes": [0],
    "format_weather_temperature": [0],
    "format_weather_wind_speed": [0],
    "format_weather_wind_direction": [],
    "format_weather_pressure": [0],
    "format_weather_distance": [],
    "format_weather_visibility": [],
    "format_weather_rain_amount": [],
    "format_weather_snow_amount": [],
    "format_weather_uv": [],
    "format_weather_humidity": [],
    "format_weather_altitude": [0],
    "format_weather_azimuth": [0],
    "format_weather_days": [],
    "format_weather_illumination": [],
    "sensor_data": [1],
    "format_sensor": [1],
    "time_items": [],
    "day_start": [],
    "day_start_with_timezone": [],
    "add_days_timezone": [],
    "add_days": [],
    "add_hours": [],
    "add_months": [],
    "components": [],
    "corrected": [],
    "utc_start": [],
    "conver_from_timezone_to_utc": [],
    "conver_to_timezone": [],
    "conver_from_timezone": [],
    "ordinal_suffix": [],
    "date_from_components": [],
    "time_interval_from_components": [],
    "utc_start_for_today": [],
    "ordinal_suffix_from_day": [],
    "replace_string_with_string_attributes": [0, 3],
    "replace_string_with_attributed_string": [0, 2],
    "does_string_match_expression": [],
    "match_for_expression": [],
    "max_double": [],
    "min_double": [],
}

_Kzm = get_introspection_module('Kzm')


def _text(argument):
    return argument if argument is None or isinstance(argument, str) else json.dumps(argument)


def _pleasant(function, positions):
    @functools.wraps(function)
    def call(*arguments):
        result = function(*(_text(a) if i in positions else a for i, a in enumerate(arguments)))
        error = _Kzm.last_error()
        if error is not None:
            raise ValueError(error)
        return result
    return call


for _name, _positions in _JSON_ARGUMENTS.items():
    globals()[_name] = _pleasant(getattr(_Kzm, _name), frozenset(_positions))

__all__ = list(_JSON_ARGUMENTS)
