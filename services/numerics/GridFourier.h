// Convolution over a grid by way of the Fourier transform, two real fields at a time: one as the real and one as the
// imaginary part.
//
// Fields lie row by row. They are transformed on a periodic grid. With a period of at least twice the field's length
// less one in each direction nothing wraps around, and the product with a kernel's transform is the plain convolution;
// the error is some units of the last place of the largest value. The digits are the same on every machine
// (FourierTransform.h).
#pragma once

#include <cstddef>
#include <utility>
#include <vector>

#include "services/numerics/FourierTransform.h"

namespace lithmark {

// A pair of real fields by their frequencies, in an order of GridFourier's own.
struct GridSpectrum {
    std::vector<double> Re, Im;
};

class GridFourier {
  public:
    // Fields of rows by columns on a grid of the given periods, which are not shorter and which FourierTransform takes.
    GridFourier(int columns, int rows, int columnPeriod, int rowPeriod);

    std::size_t FieldSize() const noexcept { return columns_ * rows_; }
    // Frequencies of a spectrum, with those that only fill up the memory's rows.
    std::size_t SpectrumSize() const noexcept { return columnPeriod_ * stride_; }

    // The transform of the fields re + i im; `im` may be null for 0.
    void Forward(const double* re, const double* im, GridSpectrum& spectrum) const;
    // The way back: Backward after Forward gives the fields. The spectrum is lost. `im` may be null.
    void Backward(GridSpectrum& spectrum, double* re, double* im) const;

    // The transform of a kernel that is even or odd in each direction (parity 1 or -1), given at the offsets from 0 on,
    // rows by columns; beyond it is 0. It has a real part alone, or an imaginary one alone when just one direction is
    // odd; that part is returned.
    std::vector<double> KernelSpectrum(const std::vector<double>& kernel, int columnParity, int rowParity) const;

    // The least and the greatest of what such a transform holds.
    std::pair<double, double> Bounds(const std::vector<double>& kernelSpectrum) const;

  private:
    std::size_t columns_, rows_, columnPeriod_, rowPeriod_;
    std::size_t stride_;  // memory of one column's frequencies
    FourierTransform alongRow_, alongColumn_;
};

}  // namespace lithmark
