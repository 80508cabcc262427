#pragma once

#include <QString>
#include <string>
#include <system_error>
#include <windows.h>

// What the calls of Windows take and give, for the files whose names end in Windows.

// A path as the calls want it, of any length: "\\?\C:\Livres\Le Loup.usm".
std::wstring systemName(const QString &path);

// The way back: with slashes, and without what tells the calls that a path may be long.
QString nameFromSystem(const std::wstring &name);

// A reason that the rest of the program knows, for a number of GetLastError().
std::error_code reasonOf(DWORD error);
std::error_code lastFailure();

// An open file or folder that is closed on every way out.
class WindowsHandle
{
public:
    explicit WindowsHandle(HANDLE handle) : m_handle(handle) {}
    ~WindowsHandle();
    WindowsHandle(const WindowsHandle &) = delete;
    WindowsHandle &operator=(const WindowsHandle &) = delete;

    bool isOpen() const { return m_handle != INVALID_HANDLE_VALUE; }
    HANDLE get() const { return m_handle; }

private:
    HANDLE m_handle;
};

// Opens a file or folder that is there, in nobody's way: others may read, write, rename and remove
// it. access: GENERIC_READ and so on, or 0 to ask about it only.
HANDLE openEntry(const QString &path, DWORD access);
