// The parts of the table.
#ifndef KZM_BENCH_PARTS_H
#define KZM_BENCH_PARTS_H

#include <cstddef>

namespace kzm::bench {

/// Warm calls beside the floor and beside the locale library, and the same calls in other locales.
void measureCalls();
void measureLocales();

/// What more threads, more options and more decimals rules cost.
void measureThreads();
void measureGrowth();

/// First calls of a process, each in a process of its own; `program` is this one.
void measureFirstCalls(const char* program);
/// In that process: prints the microseconds that the call takes.
void makeFirstCall(std::size_t number);

/// The program, which is beside this one, in processes of its own.
void measurePrograms(const char* program);

/// Makes every call for a counter of instructions, and prints their names in the order in which they are made.
void makeCountedCalls();

}  // namespace kzm::bench

#endif
