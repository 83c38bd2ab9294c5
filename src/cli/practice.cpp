#include <CLI/CLI.hpp>
#include <QCoreApplication>
#include <algorithm>
#include <iostream>
#include <memory>
#include <optional>
#include <string>

#include "cli/EndSignals.h"
#include "cli/Printing.h"
#include "cli/Report.h"
#include "cli/TourFile.h"
#include "cli/TypedInput.h"
#include "cli/Verbs.h"
#include "net/FaultText.h"
#include "platform/EpollDispatcher.h"
#include "platform/Guarded.h"
#include "platform/OpenFiles.h"
#include "practice/PracticeServer.h"
#include "text/Fault.h"
#include "text/Text.h"

namespace {

/// One of the two ports that the configuration offers.
constexpr quint16 kUsualPort = 6000;

/// What the program has open for itself, beside a connection for each furre.
constexpr std::size_t kOwnFiles = 32;

struct PracticeOptions {
    quint16 port = kUsualPort;
    std::string tourFile, name = "Visitor";
};

int Refuse(int status, const std::string& why) {
    std::cerr << "vorel practice: " << why << '\n';
    return status;
}

void Print(const std::string& line) { std::cout << line << std::endl; }

int RunDream(const PracticeOptions& options, PracticeServer& server) {
    const std::string name = BlanksToBars(FromUtf8(options.name));
    if (!IsFurreName(name)) return Refuse(kUsageExit, "a furre can't be called \"" + options.name + "\"");
    QObject::connect(&server, &PracticeServer::PersonHears, [](const QString& line) { Print(line.toStdString()); });
    QObject::connect(&server, &PracticeServer::TourEnded, [] { Print("-- The tour has ended."); });
    const auto listening = server.Listen(options.port);
    if (listening.port == 0) {
        return Refuse(kUnavailableExit, "port " + std::to_string(options.port) + ": " + listening.fault.toStdString());
    }
    Print("-- The practice dream is open at 127.0.0.1, port " + std::to_string(listening.port) + ". Ctrl+C closes it.");
    Print("-- You are " + options.name +
          ": what you type is said. \"/NAME TEXT\" whispers, \":TEXT\" emotes, \"-TEXT\" shouts.");
    server.AddPerson(name);
    const EndSignals endSignals([] { QCoreApplication::exit(0); });
    const TypedInput input([&](const std::string& line) { server.TypeAsPerson(line); });
    return QCoreApplication::exec();
}

int Practice(const PracticeOptions& options) {
    TourReading reading = ReadTourFile(options.tourFile);
    if (!reading.fault.empty()) return Refuse(kUsageExit, reading.fault);
    int argumentCount = 1;
    char program[] = "vorel";
    char* arguments[] = {program, nullptr};
    WaitByEpoll();
    Guarded<QCoreApplication> application(argumentCount, arguments);
    application.OnException([](const std::exception& exception) {
        QCoreApplication::exit(Refuse(kFaultExit, DescribeFault(AsFault(exception))));
    });
    PracticeSettings settings;
    settings.mostClients =
        std::min(settings.mostClients, std::max(AllowOpenFiles(kOwnFiles + kMostFurres), 2 * kOwnFiles) - kOwnFiles);
    settings.tour = std::move(reading.tour);
    PracticeServer server(std::move(settings));
    return RunDream(options, server);
}

}  // namespace

void AddPracticeVerb(CLI::App& app, VerbAction& action) {
    const auto options = std::make_shared<PracticeOptions>();
    CLI::App* const verb = app.add_subcommand("practice", "Open the practice dream, a game server of your own");
    verb->add_option("--port", options->port, "the port to listen on, on this computer only (0: any free one)")
        ->capture_default_str();
    verb->add_option("--tour", options->tourFile, "the file that says which visitors come and what they do");
    verb->add_option("--name", options->name, "your own furre's name")->capture_default_str();
    const auto practice = [options] {
        Printing printing;
        return printing.Leave(Practice(*options));
    };
    verb->callback([practice, &action] { action = practice; });
}
