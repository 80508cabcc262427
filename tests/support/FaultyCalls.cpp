#include "support/FaultyCalls.h"

#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <set>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
struct Plan {
    std::string prefix;
    FaultyCalls::Fault fault = FaultyCalls::Fault::None;
    int call = 0;
    int seen = 0;
    std::set<int> descriptors; // those of files under the prefix
};

Plan &plan()
{
    static Plan instance;
    return instance;
}

bool isWatched(const char *path)
{
    const std::string &prefix = plan().prefix;
    return !prefix.empty() && std::strncmp(path, prefix.c_str(), prefix.size()) == 0;
}

// True when this call is to fail. A call that kills does not come back.
bool goesWrong()
{
    using FaultyCalls::Fault;
    Plan &p = plan();
    ++p.seen;
    if (p.fault == Fault::Kill && p.seen == p.call)
        ::_exit(FaultyCalls::Killed);
    const bool wrong = (p.fault == Fault::FailOnce && p.seen == p.call) ||
                       (p.fault == Fault::FailOn && p.seen >= p.call);
    if (wrong)
        errno = EIO;
    return wrong;
}

template <typename Function> Function systemFunction(const char *name, Function /*type*/)
{
    return reinterpret_cast<Function>(::dlsym(RTLD_NEXT, name));
}

template <typename Function, typename... Arguments>
int onPath(const char *name, Function own, const char *path, Arguments... arguments)
{
    if (isWatched(path) && goesWrong())
        return -1;
    return systemFunction(name, own)(path, arguments...);
}

int onDescriptor(const char *name, int descriptor)
{
    if (plan().descriptors.count(descriptor) != 0 && goesWrong())
        return -1;
    return systemFunction<int (*)(int)>(name, nullptr)(descriptor);
}

int opened(const char *name, const char *path, int flags, va_list arguments)
{
    const bool makes = (flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE;
    const mode_t mode = makes ? va_arg(arguments, mode_t) : 0;
    const bool watched = isWatched(path);
    if (watched && (flags & (O_WRONLY | O_RDWR)) != 0 && goesWrong())
        return -1;
    const int descriptor =
        systemFunction<int (*)(const char *, int, ...)>(name, nullptr)(path, flags, mode);
    if (watched && descriptor >= 0)
        plan().descriptors.insert(descriptor);
    return descriptor;
}

} // namespace

void FaultyCalls::arm(const QString &prefix, Fault fault, int call)
{
    plan() = {prefix.toStdString(), fault, call, 0, {}};
}

int FaultyCalls::disarm()
{
    const int seen = plan().seen;
    plan() = {};
    return seen;
}

extern "C" {
int open(const char *path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const int descriptor = opened("open", path, flags, arguments);
    va_end(arguments);
    return descriptor;
}

int open64(const char *path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const int descriptor = opened("open64", path, flags, arguments);
    va_end(arguments);
    return descriptor;
}

int close(int descriptor)
{
    plan().descriptors.erase(descriptor);
    return systemFunction("close", &close)(descriptor);
}

ssize_t write(int descriptor, const void *bytes, size_t size)
{
    const auto system = systemFunction("write", &write);
    Plan &p = plan();
    if (p.descriptors.count(descriptor) == 0)
        return system(descriptor, bytes, size);
    if (p.fault == FaultyCalls::Fault::Kill && p.seen + 1 == p.call)
        system(descriptor, bytes, size / 2);
    return goesWrong() ? -1 : system(descriptor, bytes, size);
}

int fsync(int descriptor)
{
    return onDescriptor("fsync", descriptor);
}

int syncfs(int descriptor) noexcept
{
    return onDescriptor("syncfs", descriptor);
}

int rename(const char *from, const char *to) noexcept
{
    return onPath("rename", &rename, from, to);
}

int unlink(const char *path) noexcept
{
    return onPath("unlink", &unlink, path);
}

int mkdir(const char *path, mode_t mode) noexcept
{
    return onPath("mkdir", &mkdir, path, mode);
}
}
