#include "cli/monitor/tracks.h"

#include <cmath>
#include <gtest/gtest.h>

#include "cli/show/topics.h"

namespace kzm::cli {
namespace {

const Topic& network() { return topics()[0]; }

std::vector<Group> groupsOf(const char* name, std::optional<double> received) {
  return {{&network(), {{name, name, {{"received", Quantity::bandwidth, received}}}}}};
}

const Track& trackIn(const Tracks& tracks, const std::vector<Group>& groups) {
  return tracks.of(network(), groups[0].items[0], groups[0].items[0].readings[0]);
}

TEST(Tracks, ValuesAndTotals) {
  Tracks tracks;
  tracks.add(groupsOf("eth0", 100.0), 2.0);
  tracks.add(groupsOf("eth0", std::nullopt), 1.0);
  tracks.add(groupsOf("eth0", 50.0), 1.0);
  const std::vector<Group> groups = groupsOf("eth0", {});
  const Track& track = trackIn(tracks, groups);
  ASSERT_EQ(track.values.size(), 3U);
  EXPECT_EQ(track.values[0], 100.0);
  EXPECT_TRUE(std::isnan(track.values[1]));
  EXPECT_EQ(track.values[2], 50.0);
  EXPECT_EQ(track.total, 250.0);
}

TEST(Tracks, WhatIsGoneIsForgotten) {
  Tracks tracks;
  tracks.add(groupsOf("usb0", 100.0), 1.0);
  tracks.add(groupsOf("eth0", 1.0), 1.0);
  EXPECT_TRUE(trackIn(tracks, groupsOf("usb0", {})).values.empty());
  EXPECT_EQ(trackIn(tracks, groupsOf("eth0", {})).values.size(), 1U);
}

TEST(Tracks, AreBounded) {
  Tracks tracks;
  for (std::size_t i = 0; i < 2 * Tracks::kMostValues; ++i) tracks.add(groupsOf("eth0", static_cast<double>(i)), 1.0);
  const std::vector<Group> groups = groupsOf("eth0", {});
  const Track& track = trackIn(tracks, groups);
  EXPECT_EQ(track.values.size(), Tracks::kMostValues);
  EXPECT_EQ(track.values.back(), static_cast<double>(2 * Tracks::kMostValues - 1));
}

}  // namespace
}  // namespace kzm::cli
