#pragma once

#include <cstddef>
#include <cstdint>

/// Takes any bytes; ends the process where what reads them breaks its word.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size);
