#include "services/numerics/GridFourier.h"

#include <algorithm>

namespace lithmark {

namespace {

constexpr std::size_t kLanes = FourierTransform::kLanes;

std::size_t UpToLanes(std::size_t length) {
    return (length + kLanes - 1) / kLanes * kLanes;
}

// Columns on their way through a transform.
struct Columns {
    explicit Columns(const FourierTransform& transform)
        : Transform(transform),
          Re(static_cast<std::size_t>(transform.Length()) * kLanes),
          Im(Re.size()),
          Work(transform.WorkSize()) {}
    void Forward() { Transform.Forward(Re.data(), Im.data(), Work.data()); }
    void Backward() { Transform.Backward(Re.data(), Im.data(), Work.data()); }

    const FourierTransform& Transform;
    std::vector<double> Re, Im, Work;
};

}  // namespace

GridFourier::GridFourier(int columns, int rows, int columnPeriod, int rowPeriod)
    : columns_(static_cast<std::size_t>(columns)),
      rows_(static_cast<std::size_t>(rows)),
      columnPeriod_(static_cast<std::size_t>(columnPeriod)),
      rowPeriod_(static_cast<std::size_t>(rowPeriod)),
      stride_(UpToLanes(rowPeriod_)),
      alongRow_(columnPeriod),
      alongColumn_(rowPeriod) {}

// The field's columns are transformed first and stand one after the other from then on; only as many as the field has
// take part until the rows are transformed.
void GridFourier::Forward(const double* re, const double* im, GridSpectrum& spectrum) const {
    for (auto* part : {&spectrum.Re, &spectrum.Im}) part->resize(SpectrumSize());
    Columns column(alongColumn_);
    for (std::size_t c = 0; c < columns_; c += kLanes) {
        const std::size_t lanes = std::min(kLanes, columns_ - c);
        std::fill(column.Re.begin(), column.Re.end(), 0);
        std::fill(column.Im.begin(), column.Im.end(), 0);
        for (std::size_t r = 0; r < rows_; ++r) {
            std::copy_n(re + r * columns_ + c, lanes, column.Re.data() + r * kLanes);
            if (im != nullptr) std::copy_n(im + r * columns_ + c, lanes, column.Im.data() + r * kLanes);
        }
        column.Forward();
        for (std::size_t lane = 0; lane < lanes; ++lane)
            for (std::size_t j = 0; j < rowPeriod_; ++j) {
                spectrum.Re[(c + lane) * stride_ + j] = column.Re[j * kLanes + lane];
                spectrum.Im[(c + lane) * stride_ + j] = column.Im[j * kLanes + lane];
            }
    }
    Columns row(alongRow_);
    for (std::size_t j = 0; j < rowPeriod_; j += kLanes) {
        std::fill(row.Re.begin(), row.Re.end(), 0);
        std::fill(row.Im.begin(), row.Im.end(), 0);
        for (std::size_t c = 0; c < columns_; ++c) {
            std::copy_n(spectrum.Re.data() + c * stride_ + j, kLanes, row.Re.data() + c * kLanes);
            std::copy_n(spectrum.Im.data() + c * stride_ + j, kLanes, row.Im.data() + c * kLanes);
        }
        row.Forward();
        for (std::size_t c = 0; c < columnPeriod_; ++c) {
            std::copy_n(row.Re.data() + c * kLanes, kLanes, spectrum.Re.data() + c * stride_ + j);
            std::copy_n(row.Im.data() + c * kLanes, kLanes, spectrum.Im.data() + c * stride_ + j);
        }
    }
}

void GridFourier::Backward(GridSpectrum& spectrum, double* re, double* im) const {
    Columns row(alongRow_);
    for (std::size_t j = 0; j < rowPeriod_; j += kLanes) {
        for (std::size_t c = 0; c < columnPeriod_; ++c) {
            std::copy_n(spectrum.Re.data() + c * stride_ + j, kLanes, row.Re.data() + c * kLanes);
            std::copy_n(spectrum.Im.data() + c * stride_ + j, kLanes, row.Im.data() + c * kLanes);
        }
        row.Backward();
        for (std::size_t c = 0; c < columns_; ++c) {
            std::copy_n(row.Re.data() + c * kLanes, kLanes, spectrum.Re.data() + c * stride_ + j);
            std::copy_n(row.Im.data() + c * kLanes, kLanes, spectrum.Im.data() + c * stride_ + j);
        }
    }
    Columns column(alongColumn_);
    const double count = static_cast<double>(columnPeriod_ * rowPeriod_);
    for (std::size_t c = 0; c < columns_; c += kLanes) {
        const std::size_t lanes = std::min(kLanes, columns_ - c);
        for (std::size_t lane = 0; lane < lanes; ++lane)
            for (std::size_t j = 0; j < rowPeriod_; ++j) {
                column.Re[j * kLanes + lane] = spectrum.Re[(c + lane) * stride_ + j];
                column.Im[j * kLanes + lane] = spectrum.Im[(c + lane) * stride_ + j];
            }
        column.Backward();
        for (std::size_t r = 0; r < rows_; ++r)
            for (std::size_t lane = 0; lane < lanes; ++lane) {
                re[r * columns_ + c + lane] = column.Re[r * kLanes + lane] / count;
                if (im != nullptr) im[r * columns_ + c + lane] = column.Im[r * kLanes + lane] / count;
            }
    }
}

std::vector<double> GridFourier::KernelSpectrum(const std::vector<double>& kernel, int columnParity,
                                                int rowParity) const {
    // The kernel on the whole period: what lies beyond half of it comes from the other side.
    std::vector<double> periodic(columnPeriod_ * rowPeriod_);
    for (std::size_t r = 0; r < rows_; ++r) {
        for (std::size_t c = 0; c < columns_; ++c) {
            const auto add = [&](bool left, bool below) {
                const std::size_t column = left ? columnPeriod_ - c : c, row = below ? rowPeriod_ - r : r;
                const int sign = (left ? columnParity : 1) * (below ? rowParity : 1);
                periodic[row * columnPeriod_ + column] += sign * kernel[r * columns_ + c];
            };
            add(false, false);
            if (c > 0) add(true, false);
            if (r > 0) add(false, true);
            if (c > 0 && r > 0) add(true, true);
        }
    }
    const int periodColumns = alongRow_.Length(), periodRows = alongColumn_.Length();
    GridSpectrum spectrum;
    GridFourier(periodColumns, periodRows, periodColumns, periodRows).Forward(periodic.data(), nullptr, spectrum);
    return columnParity * rowParity > 0 ? std::move(spectrum.Re) : std::move(spectrum.Im);
}

std::pair<double, double> GridFourier::Bounds(const std::vector<double>& kernelSpectrum) const {
    double least = kernelSpectrum[0], greatest = least;
    for (std::size_t c = 0; c < columnPeriod_; ++c) {
        for (std::size_t j = 0; j < rowPeriod_; ++j) {
            least = std::min(least, kernelSpectrum[c * stride_ + j]);
            greatest = std::max(greatest, kernelSpectrum[c * stride_ + j]);
        }
    }
    return {least, greatest};
}

}  // namespace lithmark
