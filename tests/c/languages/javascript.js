// From JavaScript: with the conveniences when GJS_PATH has them ("with"), and without ("without").
import Kzm from 'gi://Kzm?version=1';
import System from 'system';

const [expectation] = ARGV;
let failures = 0;

function expect(why, found, expected) {
    if (found === expected) return;
    print(`${why}: ${found}, not ${expected}`);
    ++failures;
}

function errorOf(call) {
    try {
        call();
        return null;
    } catch (error) {
        return error.message;
    }
}

const rules = {'decimals-mb': [{value: 10, decimals: 2}], space: true};

expect('none', Kzm.format_memory(null, 1073741824), '1GB');
expect('a text', Kzm.format_bandwidth(JSON.stringify(rules), 1500000), '1.43 MB/s');
expect('not a number', Kzm.format_memory(null, NaN), 'NaNPB');
expect('a sensor', Kzm.format_sensor(Kzm.SENSOR_FAN, '{"units": true}', 1200), '1,200rpm');
expect('data', JSON.parse(Kzm.memory_data(null, 1610612736)).value, 1.5);
expect('no data', Kzm.sensor_data(99, null, 1), null);
expect('a number', Kzm.mps_to_kph(10), 36);
expect('truth', Kzm.does_string_match_expression('ab', '([A-Z]{2})'), true);
expect('the version', Kzm.version(), Kzm.VERSION);
expect('a missing argument', errorOf(() => Kzm.format_memory(null)) !== null, true);

if (expectation === 'with') {
    expect('an object', Kzm.format_bandwidth(rules, 1500000), '1.43 MB/s');
    expect('attributes', JSON.parse(Kzm.replace_string_with_string_attributes(
        {runs: [{text: '%@ GB'}]}, '%@', '3', {bold: true})).runs[0].attributes.bold, true);
    expect('an error', errorOf(() => Kzm.format_memory('{', 1)), 'malformed JSON at byte 2');
    expect('no object', errorOf(() => Kzm.format_memory([], 1)), 'expected an object or null, not array');
    expect('no zone', errorOf(() => Kzm.add_days_timezone(0, 1, 'No/Where')), 'no time zone is named "No/Where"');
} else {
    expect('an error', Kzm.format_memory('{', 1), null);
    expect('its text', Kzm.last_error(), 'malformed JSON at byte 2');
    expect('an object is refused', errorOf(() => Kzm.format_memory({space: true}, 1)) !== null, true);
}
System.exit(failures === 0 ? 0 : 1);
