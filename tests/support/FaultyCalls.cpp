#include "support/FaultyCalls.h"

#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <set>
#include <sys/ioctl.h>
#include <sys/sendfile.h>
#include <sys/stat.h>
#include <unistd.h>

#include <linux/fs.h>

using FaultyCalls::Fault;

namespace
{
enum class Kind { Write, Name, Other };

struct Plan {
    std::string prefix;
    Fault fault = Fault::None;
    int call = 0;
    int error = EIO;
    int seen = 0;
    std::set<int> descriptors = {}; // those of files under the prefix
};

// Never destroyed: files are still closed when the program has returned from main.
Plan &plan()
{
    static Plan &instance = *new Plan;
    return instance;
}

bool counts(Kind kind)
{
    const Plan &p = plan();
    if (p.fault == Fault::Short)
        return kind == Kind::Write;
    return p.error != EXDEV || kind == Kind::Name;
}

bool isWatched(const char *path)
{
    const std::string &prefix = plan().prefix;
    return !prefix.empty() && path != nullptr &&
           std::strncmp(path, prefix.c_str(), prefix.size()) == 0;
}

bool isWatched(int descriptor)
{
    return plan().descriptors.count(descriptor) != 0;
}

// A path that begins at an open folder.
bool isWatched(int folder, const char *path)
{
    if (folder == AT_FDCWD || path == nullptr || path[0] == '/' || plan().prefix.empty())
        return isWatched(path);
    char target[4096];
    const std::string link = "/proc/self/fd/" + std::to_string(folder);
    const ssize_t length = ::readlink(link.c_str(), target, sizeof target);
    if (length < 0)
        return false;
    return isWatched((std::string(target, static_cast<std::size_t>(length)) + '/' + path).c_str());
}

template <typename Function> Function systemFunction(const char *name, Function /*type*/)
{
    return reinterpret_cast<Function>(::dlsym(RTLD_NEXT, name));
}

// As another program does it: a cloud client, or a hand that tidies up.
void takeAway(const std::string &prefix)
{
    const int before = errno;
    systemFunction("rename", &::rename)((prefix + "a.usm").c_str(), (prefix + "a.away").c_str());
    errno = before;
}

// Makes the call, or what the plan has for it. half() does half of it, of a write.
template <typename Call, typename Half>
auto counted(bool watched, Kind kind, Call call, Half half) -> decltype(call())
{
    Plan &p = plan();
    if (!watched || !counts(kind))
        return call();
    const int number = ++p.seen;
    if ((p.fault == Fault::FailOnce && number == p.call) ||
        (p.fault == Fault::FailOn && number >= p.call)) {
        errno = p.error;
        return -1;
    }
    if (number == p.call && p.fault == Fault::Vanish)
        takeAway(p.prefix);
    if (number != p.call || p.fault == Fault::None || p.fault == Fault::Vanish)
        return call();
    if (p.fault == Fault::Kill || p.fault == Fault::Short) {
        const auto done = half();
        if (p.fault == Fault::Short)
            return done;
    }
    if (p.fault == Fault::KillAfter)
        call();
    ::_exit(FaultyCalls::Killed);
}

template <typename Call> auto counted(bool watched, Kind kind, Call call) -> decltype(call())
{
    return counted(watched, kind, call, [] { return decltype(call())(-1); });
}

template <typename Function, typename... Arguments>
int onPath(const char *name, Function own, const char *path, Arguments... arguments)
{
    return counted(isWatched(path), Kind::Other,
                   [&] { return systemFunction(name, own)(path, arguments...); });
}

template <typename Function, typename... Arguments>
auto onDescriptor(const char *name, Function own, int descriptor, Arguments... arguments)
{
    return counted(isWatched(descriptor), Kind::Other,
                   [&] { return systemFunction(name, own)(descriptor, arguments...); });
}

template <typename System> ssize_t written(int descriptor, std::size_t size, System system)
{
    return counted(
        isWatched(descriptor), Kind::Write, [&] { return system(size); },
        [&] { return system(size > 1 ? size / 2 : size); });
}

// The arguments behind the path, of which the mode is there only when a file may be made.
template <typename System> int opened(bool watched, int flags, va_list arguments, System system)
{
    const bool makes = (flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE;
    const mode_t mode = makes ? va_arg(arguments, mode_t) : 0;
    const bool writes = (flags & (O_WRONLY | O_RDWR)) != 0;
    const int descriptor = counted(watched && writes, Kind::Other, [&] { return system(mode); });
    if (watched && descriptor >= 0)
        plan().descriptors.insert(descriptor);
    return descriptor;
}

using Open = int (*)(const char *, int, ...);
using OpenAt = int (*)(int, const char *, int, ...);
} // namespace

void FaultyCalls::arm(const std::string &prefix, Fault fault, int call, int error)
{
    plan() = {prefix, fault, call, error};
}

int FaultyCalls::disarm()
{
    const int seen = plan().seen;
    plan() = {};
    return seen;
}

// How a function whose arguments are a path and the mode of a new file goes on to the system's.
#define USMIRA_OPEN(name)                                                                          \
    int name(const char *path, int flags, ...)                                                     \
    {                                                                                              \
        va_list arguments;                                                                         \
        va_start(arguments, flags);                                                                \
        const int descriptor = opened(isWatched(path), flags, arguments, [&](mode_t mode) {        \
            return systemFunction<Open>(#name, nullptr)(path, flags, mode);                        \
        });                                                                                        \
        va_end(arguments);                                                                         \
        return descriptor;                                                                         \
    }
#define USMIRA_OPENAT(name)                                                                        \
    int name(int folder, const char *path, int flags, ...)                                         \
    {                                                                                              \
        va_list arguments;                                                                         \
        va_start(arguments, flags);                                                                \
        const int descriptor =                                                                     \
            opened(isWatched(folder, path), flags, arguments, [&](mode_t mode) {                   \
                return systemFunction<OpenAt>(#name, nullptr)(folder, path, flags, mode);          \
            });                                                                                    \
        va_end(arguments);                                                                         \
        return descriptor;                                                                         \
    }

extern "C" {
USMIRA_OPEN(open)
USMIRA_OPEN(open64)
USMIRA_OPENAT(openat)
USMIRA_OPENAT(openat64)

int close(int descriptor)
{
    plan().descriptors.erase(descriptor);
    return systemFunction("close", &close)(descriptor);
}

ssize_t write(int descriptor, const void *bytes, size_t size)
{
    return written(descriptor, size, [&](size_t length) {
        return systemFunction("write", &write)(descriptor, bytes, length);
    });
}

ssize_t pwrite(int descriptor, const void *bytes, size_t size, off_t at)
{
    return written(descriptor, size, [&](size_t length) {
        return systemFunction("pwrite", &pwrite)(descriptor, bytes, length, at);
    });
}

ssize_t pwrite64(int descriptor, const void *bytes, size_t size, off64_t at)
{
    return written(descriptor, size, [&](size_t length) {
        return systemFunction("pwrite64", &pwrite64)(descriptor, bytes, length, at);
    });
}

ssize_t sendfile(int to, int from, off_t *at, size_t size) noexcept
{
    return written(to, size, [&](size_t length) {
        return systemFunction("sendfile", &sendfile)(to, from, at, length);
    });
}

ssize_t sendfile64(int to, int from, off64_t *at, size_t size) noexcept
{
    return written(to, size, [&](size_t length) {
        return systemFunction("sendfile64", &sendfile64)(to, from, at, length);
    });
}

ssize_t copy_file_range(int from, off64_t *fromAt, int to, off64_t *toAt, size_t size,
                        unsigned flags)
{
    return written(to, size, [&](size_t length) {
        return systemFunction("copy_file_range", &copy_file_range)(from, fromAt, to, toAt, length,
                                                                   flags);
    });
}

int ioctl(int descriptor, unsigned long request, ...) noexcept
{
    va_list arguments;
    va_start(arguments, request);
    const auto argument = va_arg(arguments, unsigned long);
    va_end(arguments);
    return counted(isWatched(descriptor) && request == FICLONE, Kind::Other,
                   [&] { return systemFunction("ioctl", &ioctl)(descriptor, request, argument); });
}

int fsync(int descriptor)
{
    return onDescriptor("fsync", &fsync, descriptor);
}

int fdatasync(int descriptor)
{
    return onDescriptor("fdatasync", &fdatasync, descriptor);
}

int syncfs(int descriptor) noexcept
{
    return onDescriptor("syncfs", &syncfs, descriptor);
}

int ftruncate(int descriptor, off_t size) noexcept
{
    return onDescriptor("ftruncate", &ftruncate, descriptor, size);
}

int ftruncate64(int descriptor, off64_t size) noexcept
{
    return onDescriptor("ftruncate64", &ftruncate64, descriptor, size);
}

int fchmod(int descriptor, mode_t mode) noexcept
{
    return onDescriptor("fchmod", &fchmod, descriptor, mode);
}

int fchown(int descriptor, uid_t owner, gid_t group) noexcept
{
    return onDescriptor("fchown", &fchown, descriptor, owner, group);
}

int chmod(const char *path, mode_t mode) noexcept
{
    return onPath("chmod", &chmod, path, mode);
}

int chown(const char *path, uid_t owner, gid_t group) noexcept
{
    return onPath("chown", &chown, path, owner, group);
}

int truncate(const char *path, off_t size) noexcept
{
    return onPath("truncate", &truncate, path, size);
}

int unlink(const char *path) noexcept
{
    return onPath("unlink", &unlink, path);
}

int remove(const char *path) noexcept
{
    return onPath("remove", &remove, path);
}

int mkdir(const char *path, mode_t mode) noexcept
{
    return onPath("mkdir", &mkdir, path, mode);
}

int rmdir(const char *path) noexcept
{
    return onPath("rmdir", &rmdir, path);
}

int unlinkat(int folder, const char *path, int flags) noexcept
{
    return counted(isWatched(folder, path), Kind::Other,
                   [&] { return systemFunction("unlinkat", &unlinkat)(folder, path, flags); });
}

int mkdirat(int folder, const char *path, mode_t mode) noexcept
{
    return counted(isWatched(folder, path), Kind::Other,
                   [&] { return systemFunction("mkdirat", &mkdirat)(folder, path, mode); });
}

int rename(const char *from, const char *to) noexcept
{
    return counted(isWatched(from) || isWatched(to), Kind::Name,
                   [&] { return systemFunction("rename", &rename)(from, to); });
}

int renameat(int fromFolder, const char *from, int toFolder, const char *to) noexcept
{
    return counted(isWatched(fromFolder, from) || isWatched(toFolder, to), Kind::Name, [&] {
        return systemFunction("renameat", &renameat)(fromFolder, from, toFolder, to);
    });
}

int renameat2(int fromFolder, const char *from, int toFolder, const char *to,
              unsigned flags) noexcept
{
    return counted(isWatched(fromFolder, from) || isWatched(toFolder, to), Kind::Name, [&] {
        return systemFunction("renameat2", &renameat2)(fromFolder, from, toFolder, to, flags);
    });
}

int link(const char *from, const char *to) noexcept
{
    return counted(isWatched(to), Kind::Name,
                   [&] { return systemFunction("link", &link)(from, to); });
}

int linkat(int fromFolder, const char *from, int toFolder, const char *to, int flags) noexcept
{
    return counted(isWatched(toFolder, to), Kind::Name, [&] {
        return systemFunction("linkat", &linkat)(fromFolder, from, toFolder, to, flags);
    });
}

int symlink(const char *from, const char *to) noexcept
{
    return counted(isWatched(to), Kind::Name,
                   [&] { return systemFunction("symlink", &symlink)(from, to); });
}
}
