// The program refuses its input as the catalogue does.
#ifndef KZM_CLI_ERRORS_H
#define KZM_CLI_ERRORS_H

#include "catalogue/errors.h"

namespace kzm::cli {

using catalogue::InputError;
using catalogue::inQuotes;

}  // namespace kzm::cli

#endif
