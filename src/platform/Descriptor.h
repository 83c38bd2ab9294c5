#pragma once

/// An open file or folder of the system, closed at the end.
class Descriptor {
  public:
    Descriptor() = default;
    explicit Descriptor(int number) : number_(number) {}
    Descriptor(Descriptor&& other) noexcept : number_(other.Release()) {}
    Descriptor& operator=(Descriptor&& other) noexcept;
    ~Descriptor();

    int Number() const { return number_; }
    bool IsOpen() const { return number_ >= 0; }

    /// The number, which is the caller's to close from now on; -1 when none is open.
    int Release();

  private:
    int number_ = -1;
};
