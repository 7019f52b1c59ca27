#include "kernels/elastic/CircleMesh.h"

#include <cmath>

namespace lithmark {

CircleMesh BuildCircleMesh(Single a, Integer N) {
    const Integer M = Integer::Rounded(Square(N) + 1);
    const Integer K = Integer::Rounded(N / 2.0 + 1);
    const Single d = Quotient(2 * a, N);

    Array<Single> radius(1, K), area(1, K);
    radius(1) = 0;
    area(1) = Square(d) * PI / 4;
    for (int i = 2; i <= K - 1; ++i) {
        radius(i) = radius(i - 1) + d;
        area(i) = ((Square(d / 2 + radius(i)) - Square(radius(i) - d / 2)) * PI / 2) / N;
    }
    radius(K) = a;
    area(K) = ((Square(a) - Square(a - d / 2)) * PI / 2) / N;

    CircleMesh nodes(1, M);
    nodes(1) = {0, 0, area(1)};
    int c = 1;
    Single theta = 0;
    for (int i = 2; i <= M; ++i) {
        c = c + 1;
        nodes(i) = {radius(c) * std::cos(theta), radius(c) * std::sin(theta), area(c)};
        if (c == K) {
            c = 1;
            theta = theta + PI / N;
        }
    }
    return nodes;
}

}  // namespace lithmark
