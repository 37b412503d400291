#pragma once

#include "Line.h"

#include <memory>

namespace vistrel::devsim {

// A pseudo-terminal of its own: the simulator holds the master side, and
// the station opens the other side by its path ("/dev/pts/5") as if it were
// a serial port. Raw mode, so that no byte is changed or echoed. Unix only;
// elsewhere create() fails.
class PtyLine : public Line {
public:
    static std::unique_ptr<PtyLine> create(std::string& error);
    ~PtyLine() override;

    std::string name() const override;
    // NoStation while no program has the path open.
    State state() override;
    bool write(std::string_view bytes) override;
    std::string read(std::chrono::milliseconds wait) override;
    std::string error() const override;

private:
    PtyLine() = default;
    int master_ = -1;
    std::chrono::steady_clock::time_point lastWrite_{};
    std::string path_;
    std::string error_;
};

}  // namespace vistrel::devsim
