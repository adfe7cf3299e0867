#pragma once

#include <boost/container/small_vector.hpp>

#include <cstddef>
#include <cstdint>
#include <initializer_list>

namespace trassix {

/// What is joined at one connector. Every joint is written on both pieces.
struct Joint {
  std::int32_t target = -1; ///< id of the joined piece, -1 when the connector is open
  std::int32_t tconn = -1;  ///< connector index on the target

  bool open() const { return target == -1; }
  bool operator==(const Joint&) const = default;
};

/// Indexed by the piece's own connector; a missing slot means open. Nearly every piece has two to
/// four ends, which are kept in place so that copying a plan does not allocate for each piece.
class JointTable {
 public:
  // Out of line: pieces are copied and moved in many sources, and each would compile this anew.
  JointTable();
  JointTable(std::initializer_list<Joint> joints);
  JointTable(const JointTable& other);
  JointTable(JointTable&& other) noexcept;
  JointTable& operator=(const JointTable& other);
  JointTable& operator=(JointTable&& other) noexcept;
  ~JointTable();

  std::size_t size() const { return joints_.size(); }
  /// New slots are open.
  void resize(std::size_t size);

  Joint& operator[](std::size_t connector) { return joints_[connector]; }
  const Joint& operator[](std::size_t connector) const { return joints_[connector]; }
  Joint* begin() { return joints_.data(); }
  Joint* end() { return joints_.data() + joints_.size(); }
  const Joint* begin() const { return joints_.data(); }
  const Joint* end() const { return joints_.data() + joints_.size(); }

  bool operator==(const JointTable& other) const;

 private:
  boost::container::small_vector<Joint, 4> joints_;
};

} // namespace trassix
