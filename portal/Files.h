#pragma once

/// Gets the files for a key from the file-transfer portal and prints their paths. Reads the key
/// from standard input; each path in the output ends with a NUL. The exit status.
int transferFiles();
