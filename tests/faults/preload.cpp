// Loaded in front of a program (LD_PRELOAD), which needs no part in it. The environment says what
// is to go wrong, "FAULT ERROR CALL PREFIX" in USMIRA_FAULT with the numbers of the fault and of
// the error, and in USMIRA_FAULT_SEEN the file that is given the number of calls seen.

#include "support/FaultyCalls.h"

#include <cstdio>
#include <cstdlib>

namespace
{
__attribute__((constructor)) void armFromEnvironment()
{
    const char *words = std::getenv("USMIRA_FAULT");
    int fault = 0;
    int error = 0;
    int call = 0;
    int prefixAt = 0;
    if (words != nullptr &&
        std::sscanf(words, "%d %d %d %n", &fault, &error, &call, &prefixAt) == 3)
        FaultyCalls::arm(std::string(words + prefixAt), static_cast<FaultyCalls::Fault>(fault),
                         call, error);
}

__attribute__((destructor)) void tellCalls()
{
    const int seen = FaultyCalls::disarm();
    const char *path = std::getenv("USMIRA_FAULT_SEEN");
    std::FILE *file = path != nullptr ? std::fopen(path, "w") : nullptr;
    if (file == nullptr)
        return;
    std::fprintf(file, "%d\n", seen);
    std::fclose(file);
}
} // namespace
