// The POSIX environment calls the suites use, on the Windows C runtime.
// Included ahead of every source of the Windows test build only.
// _putenv_s also updates the process environment, which the library reads.
#ifndef KOVA_TESTS_WINDOWS_POSIX_COMPAT_H_
#define KOVA_TESTS_WINDOWS_POSIX_COMPAT_H_

#include <stdlib.h>

static inline int setenv(const char* name, const char* value, int overwrite) {
  if (!overwrite && getenv(name) != NULL) return 0;
  return _putenv_s(name, value) == 0 ? 0 : -1;
}

static inline int unsetenv(const char* name) { return _putenv_s(name, "") == 0 ? 0 : -1; }

#endif  // KOVA_TESTS_WINDOWS_POSIX_COMPAT_H_
