#pragma once

#include <atomic>

namespace kalimbo::test {

// When set, the test program's next memory allocation throws std::bad_alloc (and clears it).
extern std::atomic<bool> naechsteAnforderungScheitert;

}  // namespace kalimbo::test
