#include "bytes/scaling.h"

#include "core/options.h"

namespace kzm::bytes {

UnitStyle wholeUnitStyle(const Dictionary& options, Form full) noexcept {
  if (core::readBoolean(options.find(core::kShort))) return {Form::brief, Spacing::tight};
  return {full, core::readSpacing(options)};
}

}  // namespace kzm::bytes
