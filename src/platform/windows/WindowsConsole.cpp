#include "platform/windows/WindowsConsole.h"

#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <cstdio>

namespace brask {
namespace {

void PassBytesOn(std::FILE* stream) {
    // a window program may have none of the streams
    if (_fileno(stream) >= 0) _setmode(_fileno(stream), _O_BINARY);
}

}  // namespace

WindowsConsole::WindowsConsole() : codePage_(GetConsoleOutputCP()) {
    if (codePage_ != 0) SetConsoleOutputCP(CP_UTF8);
    // erasing the progress bar needs it; where it cannot be had no bar is drawn
    const HANDLE error = GetStdHandle(STD_ERROR_HANDLE);
    DWORD mode = 0;
    if (GetConsoleMode(error, &mode) != 0) {
        SetConsoleMode(error, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING);
    }
    PassBytesOn(stdout);
    PassBytesOn(stderr);
}

WindowsConsole::~WindowsConsole() {
    if (codePage_ != 0) SetConsoleOutputCP(codePage_);
}

}  // namespace brask
