// What sanitizers shall not report: what Qt keeps until the process ends.

// NOLINTBEGIN(bugprone-reserved-identifier,readability-identifier-naming): their names.
extern "C" {

/// Slow, but sees the callers in libraries that were built without frame pointers.
const char* __asan_default_options() {
    return "fast_unwind_on_malloc=0";
}

const char* __lsan_default_suppressions() {
    return "leak:QSGRenderContext::textureForFactory\n"
           "leak:libQt6WaylandClient.so\n";
}
}
// NOLINTEND(bugprone-reserved-identifier,readability-identifier-naming)
