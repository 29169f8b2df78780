#pragma once

#include <vector>

namespace artwork {

/// For each cell of a grid the distance, in cells, to the nearest cell that is not inside; cells beyond the
/// grid count as outside. Exact Euclidean (Felzenszwalb and Huttenlocher, 2012).
std::vector<float> distanceInside(const std::vector<unsigned char>& inside, int width, int height);

} // namespace artwork
