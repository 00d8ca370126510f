// From Vala, which compiles to C with the .gir.
int main () {
    assert (Kzm.format_memory ("{\"space\": true}", 1073741824) == "1 GB");
    assert (Kzm.format_memory (null, 1073741824) == "1GB");
    assert (Kzm.memory_data (null, 1610612736) == "{\"format\": \"%@GB\", \"decimals\": 0, \"value\": 1.5}");
    assert (Kzm.mps_to_kph (10) == 36);
    assert (Kzm.does_string_match_expression ("ab", "([A-Z]{2})"));
    assert (Kzm.SENSOR_CAPACITY == 100);
    assert (Kzm.format_memory ("{", 1) == null);
    assert (Kzm.last_error () == "malformed JSON at byte 2");
    return 0;
}
