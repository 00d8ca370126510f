// The mark of a published name.
#ifndef KZMUTILITIES_EXPORT_H
#define KZMUTILITIES_EXPORT_H

/// Everything in our shared libraries is hidden but the declarations with this mark.
#define KZM_EXPORT __attribute__((visibility("default")))

#endif
