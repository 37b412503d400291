#include "FileHandles.h"

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
        h->out = std::fopen(path.c_str(), "wb");
        if (!h->out)
            return false;
    }
    open_[handle] = std::move(h);
    return true;
}

void FileHandles::close(int handle)
{
    open_.erase(handle);
}

bool FileHandles::isOpen(int handle) const
{
    return open_.count(handle) != 0;
}

std::string FileHandles::readField(int handle, bool& atEnd)
{
    auto it = open_.find(handle);
    if (it == open_.end() || it->second->mode != Mode::Input) {
        atEnd = true;
        return {};
    }
    std::string field = it->second->reader.next();
    atEnd = it->second->reader.atEnd();
    return field;
}

bool FileHandles::printLine(int handle, const std::string& text)
{
    auto it = open_.find(handle);
    if (it == open_.end())
        return false;
    if (it->second->mode == Mode::Append)
        return it->second->appended.appendLine(text);
    if (!it->second->out)
        return false;
    std::FILE* f = it->second->out;
    const bool ok = std::fwrite(text.data(), 1, text.size(), f) == text.size()
        && std::fwrite("\r\n", 1, 2, f) == 2 && std::fflush(f) == 0;
    return ok;
}

}  // namespace vistrel
