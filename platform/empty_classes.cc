// The two classes without content, whose names are published.
#include <KZMUtilities/guards.h>

KZMMath::KZMMath() noexcept = default;
KZMUtilitiesBatteryIcons::KZMUtilitiesBatteryIcons() noexcept = default;
