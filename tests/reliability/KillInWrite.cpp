#include "KillInWrite.h"

#include <dlfcn.h>
#include <stdio.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>

// The program's own definitions of these calls come before the system library's, for the database engine too.

namespace {

int callsLeft = 0;

void DieIfLast() {
    if (callsLeft > 0 && --callsLeft == 0) {
        raise(SIGKILL);
    }
}

bool IsFile(int number) {
    struct stat found {};
    return callsLeft > 0 && fstat(number, &found) == 0 && S_ISREG(found.st_mode);
}

void DieIfLastOn(int file) {
    if (IsFile(file)) {
        DieIfLast();
    }
}

template <class Result, class... Arguments>
Result System(const char* call, Arguments... arguments) {
    return reinterpret_cast<Result (*)(Arguments...)>(dlsym(RTLD_NEXT, call))(arguments...);
}

} // namespace

void KillAtCall(int call) {
    callsLeft = call;
}

extern "C" {

ssize_t write(int file, const void* bytes, size_t count) {
    if (callsLeft == 1 && IsFile(file)) {
        static_cast<void>(System<ssize_t>("write", file, bytes, count / 2));
    }
    DieIfLastOn(file);
    return System<ssize_t>("write", file, bytes, count);
}

ssize_t pwrite64(int file, const void* bytes, size_t count, off64_t place) {
    if (callsLeft == 1 && IsFile(file)) {
        static_cast<void>(System<ssize_t>("pwrite64", file, bytes, count / 2, place));
    }
    DieIfLastOn(file);
    return System<ssize_t>("pwrite64", file, bytes, count, place);
}

int fdatasync(int file) {
    DieIfLastOn(file);
    return System<int>("fdatasync", file);
}

int ftruncate64(int file, off64_t length) noexcept {
    DieIfLastOn(file);
    return System<int>("ftruncate64", file, length);
}

int unlink(const char* path) noexcept {
    DieIfLast();
    return System<int>("unlink", path);
}

int renameat2(int fromFolder, const char* from, int toFolder, const char* to, unsigned flags) noexcept {
    DieIfLast();
    return System<int>("renameat2", fromFolder, from, toFolder, to, flags);
}
}
