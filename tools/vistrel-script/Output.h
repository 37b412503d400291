#pragma once

#include <ostream>
#include <string_view>

namespace vistrel::script {

// Standard output of the driver: whole lines, flushed one by one so that
// what the station reports and what print shows keep statement order.
class Output {
public:
    explicit Output(std::ostream& stream) : stream_(&stream) {}

    // Writes text as it is (the caller escapes values) and ends the line.
    void line(std::string_view text)
    {
        *stream_ << text << '\n';
        stream_->flush();
    }

private:
    std::ostream* stream_;
};

}  // namespace vistrel::script
