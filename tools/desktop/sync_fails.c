// Preload: fsync fails with EIO while the file $SYNC_FAILS exists.

#define _GNU_SOURCE

#include <dlfcn.h>
#include <errno.h>
#include <stdlib.h>
#include <unistd.h>

static int synced(const char* name, int file) {
    const char* path = getenv("SYNC_FAILS");
    if (path && access(path, F_OK) == 0) {
        errno = EIO;
        return -1;
    }
    int (*real)(int);
    *(void**)&real = dlsym(RTLD_NEXT, name);
    return real(file);
}

int fsync(int file) {
    return synced("fsync", file);
}

int fdatasync(int file) {
    return synced("fdatasync", file);
}
