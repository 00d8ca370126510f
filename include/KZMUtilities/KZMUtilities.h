// The whole library in one include.
#ifndef KZMUTILITIES_KZMUTILITIES_H
#define KZMUTILITIES_KZMUTILITIES_H

#include <KZMUtilities/attributed_string.h>
#include <KZMUtilities/bytes.h>
#include <KZMUtilities/dictionary.h>
#include <KZMUtilities/export.h>
#include <KZMUtilities/formatters.h>
#include <KZMUtilities/percentage.h>
#include <KZMUtilities/resources.h>
#include <KZMUtilities/shared.h>
#include <KZMUtilities/value.h>

#endif
