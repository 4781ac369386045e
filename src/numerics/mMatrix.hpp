#pragma once

#include <vector>

/// Dense row-major matrix over doubles that somebody else owns: a view, cheap to copy.
///
/// The storage must outlive it. Indices start at 0 and are not checked.
class mMatrix {
public:
    int rows = 0;
    int cols = 0;
    double* data = nullptr; ///< rows * cols doubles, not owned

    /// An empty matrix.
    mMatrix() = default;

    /// A matrix over `entries`, rows * cols doubles.
    mMatrix(int rows, int cols, double* entries);

    /// A matrix over the entries of `storage` from `offset` >= 0 on; ends the process as
    /// `checkSize` does where they are too few.
    mMatrix(int rows, int cols, std::vector<double>& storage, int offset = 0);

    mMatrix(const mMatrix&) = default;
    mMatrix& operator=(const mMatrix&) = default;
    virtual ~mMatrix() = default;

    /// Address of element (i, j), i * cols + j.
    ///
    /// A derived class may place rows elsewhere, as in a block of a larger matrix; the entries of a
    /// row stay next to each other. Every other member reaches the elements through this one.
    virtual double* v(int i, int j);
    virtual const double* v(int i, int j) const;

    /// Element (i, j).
    virtual double& operator()(int i, int j);
    virtual const double& operator()(int i, int j) const;

    /// Row i -= factor * row j, from column `from` on.
    void subtractScaledRow(int i, int j, const double& factor, int from);

    /// The pivot of column i: the entry of largest magnitude in rows i and below, the first of
    /// equal ones; `i` becomes its row. Where all of them are 0 or NaN, or there are none, `i`
    /// stays and the pivot is 0.
    void pivotI(int& i, double& pivot);

    /// Exchanges rows i and j from column `from` on.
    void swap_row(int i, int j, int from);

    /// Prints `M` on standard output, a line per row, each value after a tab.
    static void print(mMatrix& M);

    /// Becomes its own transpose, in the same storage: the elements move, rows and columns swap.
    void transpose();

    /// Ends the process with a message and status 1 where `storage` has fewer than rows * cols
    /// entries from `offset` on.
    void checkSize(std::vector<double>& storage, int offset);
};
