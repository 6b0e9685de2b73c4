// The console that a shell program was started in, set up for what the program writes.
#pragma once

namespace brask {

// While it lives the console takes UTF-8 and the codes that erase a progress bar, and the bytes of
// standard output and error arrive as they were written: line ends are the same on every system.
class WindowsConsole {
  public:
    // Never fails: a program without a console has nothing to set up.
    WindowsConsole();
    // Gives the console back as it was: it belongs to the shell.
    ~WindowsConsole();
    WindowsConsole(const WindowsConsole&) = delete;
    WindowsConsole& operator=(const WindowsConsole&) = delete;

  private:
    unsigned codePage_;  // of the shell; 0 without a console
};

}  // namespace brask
