#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "practice/Dream.h"

using Lines = std::vector<std::string>;

/// A practice dream whose clock stands at 19:05:09 and whose dice fall 1, then one higher at each draw of a d6.
class DreamBench {
  public:
    DreamBench() : dream({[] { return LocalTime{2024, 5, 1, 19, 5, 9}; }, [this] { return NextDraw(); }}) {}

    /// Lets a client log in and load the dream, and forgets what was said meanwhile.
    FurreId Client(const std::string& name, const std::string& looks) {
        const FurreId id = dream.Connect().value();
        for (const std::string& line : {"connect " + name + " secret", "color " + looks, std::string(),
                                        "desc I am " + name, std::string("vascodagama")}) {
            dream.Hear(id, line);
        }
        Listen();
        return id;
    }

    /// What each furre has been sent since the last call.
    std::map<FurreId, Lines> Listen() {
        std::map<FurreId, Lines> heard;
        for (Delivery& delivery : dream.TakeDeliveries()) heard[delivery.furre].push_back(std::move(delivery.line));
        return heard;
    }

    std::map<FurreId, Lines> Hear(FurreId furre, const std::string& line) {
        dream.Hear(furre, line);
        return Listen();
    }

    double draw = -1.0 / 6;
    Dream dream;

  private:
    double NextDraw() { return draw = draw > 0.8 ? 0 : draw + 1.0 / 6 + 1e-9; }
};
