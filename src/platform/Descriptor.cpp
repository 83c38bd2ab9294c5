#include "platform/Descriptor.h"

#include <unistd.h>

#include <utility>

Descriptor& Descriptor::operator=(Descriptor&& other) noexcept {
    std::swap(number_, other.number_);  // the other one closes what was open here
    return *this;
}

Descriptor::~Descriptor() {
    if (IsOpen()) ::close(number_);
}

int Descriptor::Release() { return std::exchange(number_, -1); }
