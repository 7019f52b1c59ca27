// The values of random fields: sample by sample, each worked out by itself.
//
// random: a field's value depends on seed, sample and field name alone (Philox 4x32-10, Salmon, Moraes, Dror, Shaw
// 2011), so it is the same on every machine and for any number of workers and shards. sobol: points of Sobol's sequence
// fill the space evenly; one such set of points tells nothing about its own error, so there are 16 copies of it, each
// shifted by the seed (digital shift, L'Ecuyer and Lemieux 2002), one after the other. The spread of the copies is the
// error of their mean. A copy has 2^k points, which is what makes it even. Correlated fields have the normal copula:
// the correlation is that of their standard normal values.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "study/Distribution.h"
#include "study/StudyField.h"
#include "study/StudyRequest.h"

namespace lithmark {

class SobolPoints;

class Sampler {
  public:
    static constexpr std::uint64_t kCopies = 16;

    // StudyFailure where a field is no quantity or stands twice, a distribution has no values, or the correlations fit
    // no set of fields.
    explicit Sampler(const StudyRequest& request);
    ~Sampler();
    Sampler(Sampler&&) noexcept;

    // Samples; with sobol raised to 16 times a power of two.
    std::uint64_t Count() const noexcept { return count_; }
    bool Sobol() const noexcept { return sobol_ != nullptr; }
    std::uint64_t CopySize() const noexcept { return Sobol() ? count_ / kCopies : count_; }
    const std::vector<StudyField>& Fields() const noexcept { return fields_; }
    const Distribution& DistributionOf(std::size_t field) const { return distributions_[field]; }

    // The same texts for all ways to ask for the same samples.
    std::vector<std::string> Plain() const;

    // The values of a sample, a field each, from sample 0 on.
    std::vector<double> Values(std::uint64_t sample) const;

  private:
    struct Share {
        std::size_t Field;
        double Weight;
    };

    void ReadCorrelations(const std::vector<std::string>& texts);
    std::size_t IndexOf(const std::string& word, const std::string& text) const;
    double UniformOf(std::uint64_t sample, std::size_t field) const;

    std::vector<StudyField> fields_;
    std::vector<Distribution> distributions_;
    std::vector<std::string> correlations_;    // by the fields' names, each pair once
    std::vector<std::uint64_t> keys_;          // of the fields' names
    std::vector<std::vector<Share>> mixture_;  // of a correlated field: its normal value from independent ones
    std::vector<std::size_t> dimension_;       // of a field in Sobol's sequence: its place among the sorted names
    std::uint64_t seed_, count_;
    std::unique_ptr<SobolPoints> sobol_;
};

}  // namespace lithmark
