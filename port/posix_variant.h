// Whether a locale identifier can be given the POSIX variant.
#ifndef KZM_PORT_POSIX_VARIANT_H
#define KZM_PORT_POSIX_VARIANT_H

#include <string>

namespace kzm::port {

/// Whether `identifier` with "_POSIX" after it is a well-formed locale that has POSIX among its variants. It has not
/// when the identifier is empty or malformed, or ends in keywords, whose last value would swallow the suffix.
[[nodiscard]] bool takesPosixVariant(const std::string& identifier);

}  // namespace kzm::port

#endif
