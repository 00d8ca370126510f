#include "cli/show/sections.h"

#include <cstddef>
#include <string_view>

#include "cli/words.h"

namespace kzm::cli {
namespace {

// Bars are in the fourth column, whatever the row has before it.
constexpr std::size_t kBarColumn = 3;

Row rowOf(const Item& item, const Texts& texts) {
  Row row{item.name, {}};
  for (const Measured& reading : item.readings) row.cells.push_back(texts.cell(reading));
  const Measured& last = item.readings.back();
  if (!isPart(last.quantity)) return row;
  row.cells.resize(kBarColumn);
  row.cells.push_back(bar(last.value.value_or(0.0)));
  return row;
}

}  // namespace

Section sectionOf(const Group& group, const Texts& texts) {
  Section section{word(group.topic->title), {}, {}};
  for (const std::string_view column : group.topic->columns) {
    if (!column.empty()) section.columns.push_back(word(column));
  }
  for (const Item& item : group.items) section.rows.push_back(rowOf(item, texts));
  return section;
}

std::vector<Section> sectionsOf(const std::vector<Group>& groups, const Texts& texts) {
  std::vector<Section> sections;
  sections.reserve(groups.size());
  for (const Group& group : groups) sections.push_back(sectionOf(group, texts));
  if (sections.size() == 1 && sections[0].rows.empty()) sections[0] = {sections[0].title, {}, {{"–", {}}}};
  return sections;
}

}  // namespace kzm::cli
