#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "platform/FrontEnd.h"
#include "text/Fault.h"

/// A front end that writes down what it is to show.
class Notebook final : public FrontEnd {
  public:
    std::vector<std::string> lines;

    void ShowConsoleLine(std::string_view line) override { lines.emplace_back(line); }
    void ClearConsole() override { lines.clear(); }
    void ShowMessage(std::string_view, std::string_view text) override { lines.emplace_back(text); }
    void StatusChanged() override {}
    void EndWithFault(const RuntimeFault& fault) override { lines.emplace_back(fault.Name()); }

    std::ptrdiff_t Count(std::string_view part) const {
        const auto holds = [&](const std::string& line) { return line.find(part) != std::string::npos; };
        return std::count_if(lines.begin(), lines.end(), holds);
    }
};
