#include "ScriptSerialPort.h"

#include "Escape.h"

namespace vistrel::script {

void ScriptSerialPort::receive(const std::string& text)
{
    buffer_ += text;
    deliverReceived();
}

bool ScriptSerialPort::openPort()
{
    open_ = true;
    return true;
}

std::string ScriptSerialPort::readAll()
{
    std::string all;
    all.swap(buffer_);
    return all;
}

void ScriptSerialPort::write(const std::string& text)
{
    out_->line("SerialOut: " + escapeValue(text));
}

}  // namespace vistrel::script
