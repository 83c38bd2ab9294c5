#include "ui/PracticeDoor.h"

#include "platform/QtHost.h"
#include "practice/PracticeServer.h"
#include "practice/Tour.h"

PracticeDoor::PracticeDoor(QtHost& host) : host_(host) {
    host.session().SetAddressResolver([this](std::string& address, int& port) {
        if (address != kPracticeAddress) return;
        port = Open();
        address = "127.0.0.1";
    });
}

PracticeDoor::~PracticeDoor() = default;

/// @return the port; 0 when none could be had
int PracticeDoor::Open() {
    PracticeSettings settings;
    const std::string tourFile = JoinPath(FolderOf(host_.bot().profile.path), "tour.txt");
    if (const auto tour = host_.Disk().Find(tourFile)) {
        TourReading reading = ReadTour(ValueOrFault(host_.Disk().Read(*tour)), *tour);
        if (!reading.fault.empty()) emit TourRefused(QString::fromStdString(reading.fault));
        settings.tour = std::move(reading.tour);
    }
    server_ = std::make_unique<PracticeServer>(std::move(settings));
    const auto listening = server_->Listen(0);
    if (listening.port == 0) emit Refused(tr("The practice dream can't be opened: %1").arg(listening.fault));
    return listening.port;
}
