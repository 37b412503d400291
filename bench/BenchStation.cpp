#include "BenchStation.h"

#include <stdexcept>

namespace vistrel::bench {

QuietPlatform::QuietPlatform(std::filesystem::path root) : root_(std::move(root)) {}

void QuietPlatform::runModal(Form& form)
{
    if (Control* ok = form.control("Cmd_Continue"))
        ok->click();
    if (form.visible())
        form.hide();
}

void QuietPlatform::endProcess()
{
    throw std::runtime_error("the station ended");
}

BenchStation::BenchStation(const BenchFolders& folders)
{
    platform = std::make_unique<QuietPlatform>(folders.root);
    station = std::make_unique<Station>(*platform);
    station->start();
}

BenchStation::~BenchStation() = default;

}  // namespace vistrel::bench
