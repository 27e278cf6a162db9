#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <cstdint>
#include <cstdlib>

namespace ravelo::fuzz {

/// libFuzzer's input, not copied, so that the sanitizer sees reads beyond its end.
inline QByteArrayView view(const uint8_t* bytes, size_t size) {
    return {reinterpret_cast<const char*>(bytes), static_cast<qsizetype>(size)};
}

/// A promise of the parser that must hold for any input.
inline void require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

} // namespace ravelo::fuzz

/// The entry point of every target; see libFuzzer.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size);
