// What was measured, before it becomes text.
#ifndef KZM_CLI_SHOW_READINGS_H
#define KZM_CLI_SHOW_READINGS_H

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kzm::cli {

/// What is measured, and so how it is written.
enum class Quantity : std::uint8_t {
  bandwidth,     // bytes per second of a network interface
  diskActivity,  // bytes per second of a disk
  space,         // bytes on a volume
  memory,        // bytes
  part,          // of a whole, 0 to 1
  load,          // programs that wanted to run
  temperature,   // degrees Celsius
  level,         // of a battery, 0 to 1
  fan,           // revolutions per minute
  current,       // amperes
  power,         // watts
  voltage,       // volts
  light,         // lux
  frequency,     // megahertz
  capacity,      // milliampere-hours
  state,         // a word
};

/// How much it asks for attention.
enum class Level : std::uint8_t { normal, warning, critical };

/// One reading.
struct Measured {
  std::string_view name;  // what it is of its item: "received", "used"
  Quantity quantity;
  std::optional<double> value = {};  // nothing when it is not known, and for a state
  std::string word = {};             // of a state, in the user's language

  friend bool operator==(const Measured&, const Measured&) = default;
};

/// What the readings are of: an interface, a disk, a sensor.
struct Item {
  std::string id;    // the same in every language, and only once in its topic
  std::string name;  // in the user's language
  std::vector<Measured> readings;

  friend bool operator==(const Item&, const Item&) = default;
};

/// The unit of a value, "1" where it has none; empty for a state.
[[nodiscard]] std::string_view unitOf(Quantity quantity);

/// Whether it is a part of a whole, 0 to 1.
[[nodiscard]] bool isPart(Quantity quantity);

/// Whether its value is given per second.
[[nodiscard]] bool isRate(Quantity quantity);

/// The level of the value; what is not known is normal.
[[nodiscard]] Level levelOf(const Measured& reading);

/// An arrow for a reading that goes in or out, by its name; empty for all others.
[[nodiscard]] std::string_view signOf(std::string_view name);

}  // namespace kzm::cli

#endif
