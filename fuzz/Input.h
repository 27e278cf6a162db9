#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <cstdint>
#include <cstdlib>

namespace ravelo::fuzz {

/// What libFuzzer gives, without a copy, so that the sanitizer sees every byte read beyond it.
inline QByteArrayView view(const uint8_t* bytes, size_t size) {
    return {reinterpret_cast<const char*>(bytes), static_cast<qsizetype>(size)};
}

/// A promise of the parser that no input may break.
inline void require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

} // namespace ravelo::fuzz

/// What every target defines; see libFuzzer.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size);
