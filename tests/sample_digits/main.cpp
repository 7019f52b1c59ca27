// Prints a sum over the bits of many samples, for tests/sample-digits, which runs it on several processors and builds.
//     sample_digits ROWS
#include <bit>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "base/Single.h"
#include "core/Catalogue.h"
#include "core/Session.h"
#include "core/StartSession.h"
#include "study/Sampler.h"

int main(int argc, char** argv) {
    using namespace lithmark;
    StartSession();
    Session.ProblemType = Problem::Consolidation;
    SetProblemDefaults();
    StudyRequest request;
    request.Random = {"Es=lognormal:5000:30%", "P=normal:150:10%:100:200",  "h=triangular:3:5:9",
                      "Cc=uniform:0.1:0.4",    "eo=lognormal:0.85:10%:0:2", "Po=triangular:30:40:70:35:60",
                      "z=normal:2:0.25"};
    request.Correlate = {"Cc,eo=0.7", "Es,h=-0.4"};
    request.Samples = argc > 1 ? std::strtoull(argv[1], nullptr, 10) : 100000;
    for (const bool sobol : {false, true}) {
        request.Sobol = sobol;
        const Sampler sampler(request);
        std::uint64_t sum = 0xcbf29ce484222325U;
        for (std::uint64_t sample = 0; sample < sampler.Count(); ++sample)
            for (const double value : sampler.Values(sample))
                sum = (sum ^ std::bit_cast<std::uint32_t>(Single(value).Stored())) * 0x100000001b3U;
        std::printf("%s %llu samples: %016llx\n", sobol ? "sobol" : "random",
                    static_cast<unsigned long long>(sampler.Count()), static_cast<unsigned long long>(sum));
    }
    return 0;
}
