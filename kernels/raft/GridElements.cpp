#include "kernels/raft/GridElements.h"

namespace lithmark {

void BuildGridElements(Integer& count, int nx, int ny, const Matrix<Integer>& active, const Matrix<Integer>& nodeNo,
                       Array<Integer>& n1, Array<Integer>& n2, Array<Integer>& n3, Array<Integer>& n4) {
    count = 0;
    const auto put = [&count](Array<Integer>& list, Integer node) {
        list.Grow(count);
        list(count) = node;
    };
    for (int j = 1; j <= ny; ++j) {
        for (int i = 1; i <= nx; ++i) {
            if (active(i, j) == 0 || active(i + 1, j) == 0 || active(i, j + 1) == 0 || active(i + 1, j + 1) == 0)
                continue;
            ++count;
            put(n1, nodeNo(i, j));
            put(n2, nodeNo(i + 1, j));
            put(n3, nodeNo(i, j + 1));
            put(n4, nodeNo(i + 1, j + 1));
        }
    }
}

}  // namespace lithmark
