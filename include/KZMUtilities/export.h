// The mark of a published name.
#ifndef KZMUTILITIES_EXPORT_H
#define KZMUTILITIES_EXPORT_H

/// Everything is hidden in our shared libraries but the declarations that bear this mark.
#define KZM_EXPORT __attribute__((visibility("default")))

#endif
