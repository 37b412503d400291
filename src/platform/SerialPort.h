#pragma once

#include <functional>
#include <string>

namespace vistrel {

// The serial line of the autorefractor, with the properties the station
// sets on it. A platform overrides the four hooks at the bottom; the
// settings are kept here so that every implementation reports them alike.
class SerialPort {
public:
    virtual ~SerialPort() = default;

    int commPort() const { return commPort_; }
    void setCommPort(int port) { commPort_ = port; }
    const std::string& settings() const { return settings_; }
    void setSettings(const std::string& settings) { settings_ = settings; applySettings(); }
    int inBufferSize() const { return inBufferSize_; }
    void setInBufferSize(int size) { inBufferSize_ = size; }
    bool dtrEnable() const { return dtr_; }
    void setDTREnable(bool on) { dtr_ = on; applySettings(); }
    bool rtsEnable() const { return rts_; }
    void setRTSEnable(bool on) { rts_ = on; applySettings(); }
    bool eofEnable() const { return eof_; }
    void setEOFEnable(bool on) { eof_ = on; }
    int handshaking() const { return handshaking_; }
    void setHandshaking(int mode) { handshaking_ = mode; applySettings(); }
    int inputMode() const { return inputMode_; }
    void setInputMode(int mode) { inputMode_ = mode; }
    int rThreshold() const { return rThreshold_; }
    void setRThreshold(int n) { rThreshold_ = n; }

    // Opening may fail; the station ignores that and runs on by hand.
    bool portOpen() const { return isOpen(); }
    bool setPortOpen(bool open) { return open ? openPort() : (closePort(), true); }

    // 2 while a receive event is being delivered.
    int commEvent() const { return commEvent_; }
    // Everything received so far; empties the receive buffer.
    std::string input() { return readAll(); }
    void output(const std::string& text) { write(text); }

    // Raised on the screen's thread when characters arrive.
    std::function<void()> onComm;

protected:
    virtual bool openPort() = 0;
    virtual void closePort() = 0;
    virtual bool isOpen() const = 0;
    virtual std::string readAll() = 0;
    virtual void write(const std::string& text) = 0;
    virtual void applySettings() {}

    // Delivers one receive event to the station.
    void deliverReceived()
    {
        commEvent_ = 2;
        if (onComm)
            onComm();
        commEvent_ = 0;
    }

private:
    int commPort_ = 1;
    std::string settings_ = "9600,n,8,1";
    int inBufferSize_ = 1024;
    bool dtr_ = false;
    bool rts_ = false;
    bool eof_ = false;
    int handshaking_ = 0;
    int inputMode_ = 0;
    int rThreshold_ = 0;
    int commEvent_ = 0;
};

}  // namespace vistrel
