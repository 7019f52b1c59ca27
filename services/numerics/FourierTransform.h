// The discrete Fourier transform of several columns side by side, for lengths without other factors than 2, 3 and 5.
//
// Method: self-sorting stages of radix 4, 2, 3 and 5 (Stockham; Cooley and Tukey, 1965), in 64 bits; the error is some
// units of the last place of the largest value. The roots of unity are worked out by additions, multiplications and
// divisions alone, since the sine and cosine of a C library differ from processor to processor, and the lanes are all
// worked alike. So the digits are the same on every machine and in every build type.
#pragma once

#include <vector>

namespace lithmark {

class FourierTransform {
  public:
    static constexpr int kLanes = 4;

    // The least length from `least` on that the transform takes; 1 for anything below.
    static int LengthFrom(int least);
    // InvalidArgument for a length with another prime factor.
    explicit FourierTransform(int length);

    int Length() const noexcept { return length_; }
    // Doubles that `work` must have room for.
    std::size_t WorkSize() const noexcept { return 2 * static_cast<std::size_t>(length_) * kLanes; }

    // Replaces the columns by their transforms, sum over k of value(k) exp(-2 pi i j k/length). Real and imaginary
    // parts stand in tables of their own, Length() rows of kLanes.
    void Forward(double* re, double* im, double* work) const;
    // The sum with the other sign in the exponent, not divided by the length.
    void Backward(double* re, double* im, double* work) const { Forward(im, re, work); }

  private:
    struct Root {
        double Re, Im;
    };
    int length_;
    std::vector<int> radices_;
    std::vector<Root> roots_;  // exp(-2 pi i k/length)
};

}  // namespace lithmark
