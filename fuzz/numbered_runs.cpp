// Runs a fuzz target on the bytes of consecutive numbers, many times faster than the fuzzer, which
// spends its time on coverage: for long runs by hand. A failure names its number.
#include <array>
#include <bit>
#include <cinttypes>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <sanitizer/common_interface_defs.h>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

std::uint64_t current = 0;

/// Neighbouring numbers give unlike bytes (the finaliser of SplitMix64).
std::uint64_t scattered(std::uint64_t number) {
  number += 0x9e3779b97f4a7c15;
  number = (number ^ number >> 30U) * 0xbf58476d1ce4e5b9;
  number = (number ^ number >> 27U) * 0x94d049bb133111eb;
  return number ^ number >> 31U;
}

void tellNumber() {
  std::fprintf(stderr, "failed at number %" PRIu64 "\n", current);
}

} // namespace

int main(int count, char** arguments) {
  if (count != 3) {
    std::fprintf(stderr, "usage: %s FIRST COUNT\n", arguments[0]);
    return 2;
  }
  const std::uint64_t first = std::strtoull(arguments[1], nullptr, 10);
  const std::uint64_t runs = std::strtoull(arguments[2], nullptr, 10);
  __sanitizer_set_death_callback(tellNumber);
  for (current = first; current < first + runs; ++current) {
    const auto bytes = std::bit_cast<std::array<std::uint8_t, sizeof current>>(scattered(current));
    LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
    if ((current - first + 1) % 10'000 == 0) {
      std::printf("%" PRIu64 " done\n", current - first + 1);
      std::fflush(stdout);
    }
  }
  return 0;
}
