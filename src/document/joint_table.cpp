#include "document/joint_table.h"

#include <algorithm>

namespace trassix {

JointTable::JointTable() = default;
JointTable::JointTable(std::initializer_list<Joint> joints) : joints_(joints) {}
JointTable::JointTable(const JointTable&) = default;
JointTable::JointTable(JointTable&&) noexcept = default;
JointTable& JointTable::operator=(const JointTable&) = default;
JointTable& JointTable::operator=(JointTable&&) noexcept = default;
JointTable::~JointTable() = default;

void JointTable::resize(std::size_t size) {
  joints_.resize(size);
}

bool JointTable::operator==(const JointTable& other) const {
  return std::ranges::equal(*this, other);
}

} // namespace trassix
