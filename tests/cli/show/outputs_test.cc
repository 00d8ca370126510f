// From readings made by hand to the lines that bars read.
#include "cli/show/outputs.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace kzm::cli {
namespace {

const Topic* topicNamed(std::string_view name) { return &*std::ranges::find(topics(), name, &Topic::name); }

std::vector<Group> network() {
  return {{topicNamed("network"),
           {{"eth0", "eth0", {{"received", Quantity::bandwidth, 1500000.0}, {"sent", Quantity::bandwidth}}}}}};
}

std::vector<Group> memory(double used) {
  return {{topicNamed("memory"),
           {{"main",
             "main",
             {{"used", Quantity::memory, 2147483648.0},
              {"free", Quantity::memory, 6442450944.0},
              {"part", Quantity::part, used}}}}}};
}

std::vector<Group> named(const char* name) {
  return {{topicNamed("disks"), {{name, name, {{"read", Quantity::diskActivity, 3145728.0}}}}}};
}

std::string line(std::string_view output, const std::vector<Group>& groups, bool constantWidth = false) {
  const Texts texts;
  return std::ranges::find(outputs(), output, &Output::name)->line(groups, {texts, constantWidth});
}

TEST(Outputs, Json) {
  EXPECT_EQ(line("json", network()),
            R"({"direction":"ltr","topics":[{"topic":"network","title":"Network","items":[)"
            R"({"id":"eth0","name":"eth0","readings":[)"
            R"({"name":"received","label":"received","value":1500000.0,"unit":"B/s","text":"1.43 MB/s",)"
            R"("widest":"1,024.0 KB/s","level":"normal"},)"
            R"({"name":"sent","label":"sent","value":null,"unit":"B/s","text":"–",)"
            R"("widest":"1,024.0 KB/s","level":"normal"}]}]}]})");
  EXPECT_EQ(
      line("json", {{topicNamed("battery"), {{"BAT0", "BAT0", {{"state", Quantity::state, {}, "Full"}}}}}}),
      R"({"direction":"ltr","topics":[{"topic":"battery","title":"Battery","items":[)"
      R"({"id":"BAT0","name":"BAT0","readings":[)"
      R"({"name":"state","label":"","value":null,"unit":"","text":"Full","widest":"Full","level":"normal"}]}]}]})");
  EXPECT_EQ(line("json", {{topicNamed("fans"), {}}}),
            R"({"direction":"ltr","topics":[{"topic":"fans","title":"Fans","items":[]}]})")
      << "a topic without readings is there all the same";
}

TEST(Outputs, Plain) {
  EXPECT_EQ(line("plain", network()), "eth0 ↓1.43 MB/s ↑–");
  EXPECT_EQ(line("plain", network(), true), "eth0 ↓   1.43 MB/s ↑           –");
  std::vector<Group> both = network();
  both.push_back(memory(0.25).front());
  EXPECT_EQ(line("plain", both), "eth0 ↓1.43 MB/s ↑– | main 2.00 GB 25%") << "of what is full, how full";
  EXPECT_EQ(line("plain", {}), "");
}

TEST(Outputs, Waybar) {
  EXPECT_EQ(line("waybar", memory(0.96)),
            R"({"text":"main 2.00 GB 96%",)"
            R"("tooltip":"<tt>Memory                          used          free\n)"
            R"(  main                       2.00 GB       6.00 GB           96%  ███████████████████░</tt>",)"
            R"("class":"critical","percentage":96})");
  const std::string markup = line("waybar", named("<b>&"), true);
  EXPECT_TRUE(markup.starts_with("{\"text\":\"&lt;b>&amp; ↓\u2007")) << "a name is no markup, room is of figure spaces";
  EXPECT_EQ(markup.find("percentage"), std::string::npos) << "there is no part of a whole";
}

TEST(Outputs, I3bar) {
  EXPECT_EQ(line("i3bar", memory(0.25)),
            R"(,[{"name":"memory","instance":"main","full_text":"main 2.00 GB 25%","short_text":"2.00 GB 25%"}])");
  EXPECT_EQ(line("i3bar", memory(0.96), true),
            R"(,[{"name":"memory","instance":"main","full_text":"main 2.00 GB 96%","short_text":"2.00 GB 96%",)"
            R"("min_width":"main  2.00 GB  96%","align":"right","urgent":true}])");
  const auto output = std::ranges::find(outputs(), "i3bar", &Output::name);
  EXPECT_EQ(output->first, "{\"version\":1}\n[\n[]\n");
  EXPECT_EQ(output->last, "]\n");
}

TEST(Outputs, Polybar) {
  EXPECT_EQ(line("polybar", memory(0.25)), "main 2.00 GB 25%");
  EXPECT_EQ(line("polybar", memory(0.96)), "%{R} main 2.00 GB 96% %{R}");
  EXPECT_EQ(line("polybar", named("%{F#f00}")), "% {F#f00} ↓3.00 MB/s") << "a name is no tag";
}

TEST(Outputs, TextsFromRightToLeftAreIsolated) {
  EXPECT_EQ(line("plain", {{topicNamed("disks"), {{"x", "דיסק", {{"read", Quantity::diskActivity, 3145728.0}}}}}}),
            "\u2068דיסק\u2069 ↓3.00 MB/s");
}

}  // namespace
}  // namespace kzm::cli
