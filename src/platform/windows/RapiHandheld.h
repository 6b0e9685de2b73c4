// The handheld behind the remote-access library that comes with the synchronization software.
#pragma once

#include <windows.h>

#include <memory>
#include <string>

#include "platform/HandheldAccess.h"

namespace brask {

class RapiHandheld final : public HandheldAccess {
  public:
    // Loads rapi.dll; without it nothing can be initialised.
    RapiHandheld();
    ~RapiHandheld() override;
    RapiHandheld(const RapiHandheld&) = delete;
    RapiHandheld& operator=(const RapiHandheld&) = delete;

    Status Initialise() override;
    bool LinkHasComeUp() override;
    // The library tells only by the first use of the storage.
    bool Connected() override { return initialised_; }
    Result<std::string> FindFirst(const std::string& pattern) override;
    Result<std::string> FindNext() override;
    Result<std::unique_ptr<HandheldFile>> Open(const std::string& path) override;
    Status Delete(const std::string& path) override;
    Status Move(const std::string& from, const std::string& to) override;
    Status MakeFolder(const std::string& path) override;

  private:
    struct Library;     // the functions that are used
    struct InitRecord;  // what the link's begin tells

    void EndSearch();
    Error LastError() const;

    // Shared with open files, which must not outlive the library.
    std::shared_ptr<const Library> library_;
    // The library goes on writing into it after Initialise, until the link ends.
    std::unique_ptr<InitRecord> init_;
    HANDLE started_ = nullptr;  // the library's event; it belongs to the library
    HANDLE search_ = INVALID_HANDLE_VALUE;
    bool initialised_ = false;
    bool hasComeUp_ = false;

    class File;
};

}  // namespace brask
