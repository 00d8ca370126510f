// Kzm for JavaScript: options, attributes and styled texts may be given as objects and arrays, and errors are thrown.
//
// Made by tools/bindings of the catalogue of callables and of c/introspection/overrides/Kzm.js.in: change these.

// Which arguments of each function are JSON texts.
const jsonArguments = {
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
};

function textOf(argument) {
    return argument === null || typeof argument === 'string' ? argument : JSON.stringify(argument);
}

// Called with the module, before anybody else sees it.
function _init() {
    const Kzm = this;
    for (const [name, positions] of Object.entries(jsonArguments)) {
        const call = Kzm[name];
        Kzm[name] = function (...given) {
            for (const position of positions) {
                if (position < given.length) given[position] = textOf(given[position]);
            }
            const result = call(...given);
            const error = Kzm.last_error();
            if (error !== null) throw new Error(error);
            return result;
        };
    }
}
