#include "FileHandles.h"

#include "platform/FileSystem.h"

namespace vistrel {

FileHandles::Handle::~Handle()
{
    if (out)
        std::fclose(out);
}

int FileHandles::freeFile() const
{
    int n = 1;
    while (open_.count(n))
        ++n;
    return n;
}

bool FileHandles::open(int handle, const std::string& path, Mode mode)
{
    close(handle);
    auto h = std::make_unique<Handle>();
    h->mode = mode;
    if (mode == Mode::Input) {
        if (!h->reader.open(path))
            return false;
    } else if (mode == Mode::Append) {
        if (!h->appended.open(path))
            return false;
    } else {
        h->out = OpenFile(path, "wb");
        if (!h->out)
            return false;
    }
    open_[handle] = std::move(h);
    return true;
}

void FileHandles::close(int handle)
{
    if (handle == lastFound_)
        lastFoundHandle_ = nullptr;
    open_.erase(handle);
}

FileHandles::Handle* FileHandles::find(int handle)
{
    if (lastFoundHandle_ && handle == lastFound_)
        return lastFoundHandle_;
    auto it = open_.find(handle);
    if (it == open_.end())
        return nullptr;
    lastFound_ = handle;
    lastFoundHandle_ = it->second.get();
    return lastFoundHandle_;
}

bool FileHandles::isOpen(int handle) const
{
    return open_.count(handle) != 0;
}

std::string FileHandles::readField(int handle, bool& atEnd)
{
    // One way out, so that the field is made in place and never moved.
    Handle* h = find(handle);
    const bool reading = h && h->mode == Mode::Input;
    std::string field = reading ? h->reader.next() : std::string();
    atEnd = !reading || h->reader.atEnd();
    return field;
}

bool FileHandles::printLine(int handle, const std::string& text)
{
    Handle* h = find(handle);
    if (!h)
        return false;
    if (h->mode == Mode::Append)
        return h->appended.appendLine(text);
    if (!h->out)
        return false;
    std::FILE* f = h->out;
    const bool ok = std::fwrite(text.data(), 1, text.size(), f) == text.size()
        && std::fwrite("\r\n", 1, 2, f) == 2 && std::fflush(f) == 0;
    return ok;
}

}  // namespace vistrel
