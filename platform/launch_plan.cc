#include "platform/launch_plan.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace kzm::platform {
namespace {

using Kind = port::Stream::Kind;

// A child's standard streams by number, and which end of a pipe is the child's.
struct StreamRow {
  StandardConnection ChildConfiguration::*connection;
  const FileHandle& (Pipe::*childsEnd)() const noexcept;
};
constexpr std::array<StreamRow, 3> kStreams{{{&ChildConfiguration::standardInput, &Pipe::readingEnd},
                                             {&ChildConfiguration::standardOutput, &Pipe::writingEnd},
                                             {&ChildConfiguration::standardError, &Pipe::writingEnd}}};

port::Stream streamOf(const ChildConfiguration& configuration, const StreamRow& row) {
  const StandardConnection& connection = configuration.*row.connection;
  if (std::holds_alternative<NullStream>(connection)) return {Kind::null};
  if (const Pipe* pipe = std::get_if<Pipe>(&connection)) return {Kind::file, (pipe->*row.childsEnd)().duplicate()};
  if (const FileHandle* file = std::get_if<FileHandle>(&connection)) return {Kind::file, file->duplicate()};
  return {Kind::inherited};
}

bool isUsable(const port::Stream& stream) { return stream.kind != Kind::file || stream.file.isOpen(); }

// The system's texts end at a zero byte; what comes after one would silently be lost.
bool isWhole(std::string_view text) { return text.find('\0') == std::string_view::npos; }

bool isName(const std::string& name) { return !name.empty() && name.find('=') == std::string::npos; }

std::vector<std::string> assignments(const std::map<std::string, std::string>& variables) {
  std::vector<std::string> result;
  result.reserve(variables.size());
  for (const auto& [name, value] : variables) result.emplace_back(name).append("=").append(value);
  return result;
}

bool isStartable(const port::Launch& launch) {
  static const std::vector<std::string> none;
  return isWhole(launch.executable) && isWhole(launch.workingDirectory) &&
         std::ranges::all_of(launch.arguments, isWhole) &&
         std::ranges::all_of(launch.environment ? *launch.environment : none, isWhole) &&
         std::ranges::all_of(launch.streams, isUsable);
}

}  // namespace

std::optional<port::Launch> planLaunch(const ChildConfiguration& configuration) {
  port::Launch launch{configuration.executable, configuration.arguments, {}, configuration.workingDirectory, {}};
  if (const auto& variables = configuration.environment) {
    if (!std::ranges::all_of(*variables, isName, [](const auto& variable) { return variable.first; })) return {};
    launch.environment = assignments(*variables);
  }
  for (std::size_t number = 0; number < kStreams.size(); ++number)
    launch.streams[number] = streamOf(configuration, kStreams[number]);
  if (!isStartable(launch)) return std::nullopt;
  return launch;
}

void closeChildsEnds(const ChildConfiguration& configuration) {
  for (const StreamRow& row : kStreams)
    if (const Pipe* pipe = std::get_if<Pipe>(&(configuration.*row.connection))) (pipe->*row.childsEnd)().close();
}

}  // namespace kzm::platform
