#pragma once

// Std
#include <cstddef>
#include <vector>

namespace tnw::tradeoffs {

// A dense matrix of doubles with 0-based row and column indexes, all elements 0 when made.
class Matrix {
 public:
  // An empty matrix.
  Matrix() = default;
  // A rows × cols matrix of zeros (negative sizes count as 0).
  Matrix(int rows, int cols)
      : m_rows(rows < 0 ? 0 : rows),
        m_cols(cols < 0 ? 0 : cols),
        m_data(static_cast<std::size_t>(m_rows) * static_cast<std::size_t>(m_cols), 0.0) {}

  // Makes the matrix rows × cols and all zeros, keeping the storage it already has.
  void assignZeros(int rows, int cols) {
    m_rows = rows < 0 ? 0 : rows;
    m_cols = cols < 0 ? 0 : cols;
    m_data.assign(static_cast<std::size_t>(m_rows) * static_cast<std::size_t>(m_cols), 0.0);
  }

  // Makes the matrix rows × cols, keeping its storage and leaving the elements as they lie in it
  // (0s where it grows): for a caller that writes every element.
  void reshape(int rows, int cols) {
    m_rows = rows < 0 ? 0 : rows;
    m_cols = cols < 0 ? 0 : cols;
    m_data.resize(static_cast<std::size_t>(m_rows) * static_cast<std::size_t>(m_cols), 0.0);
  }

  // The number of rows.
  int rows() const { return m_rows; }
  // The number of columns.
  int cols() const { return m_cols; }
  // The element at (r, c); both must be in range.
  double& operator()(int r, int c) { return m_data[index(r, c)]; }
  // The element at (r, c); both must be in range.
  double operator()(int r, int c) const { return m_data[index(r, c)]; }
  // The elements of row r in order, for reading a row in one pass; r must be in range.
  const double* row(int r) const { return m_data.data() + index(r, 0); }

 private:
  std::size_t index(int r, int c) const {
    return static_cast<std::size_t>(r) * static_cast<std::size_t>(m_cols) +
           static_cast<std::size_t>(c);
  }

  int m_rows = 0;
  int m_cols = 0;
  std::vector<double> m_data;
};

}  // namespace tnw::tradeoffs
