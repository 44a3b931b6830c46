// The reference library as an application meets it: loaded by start-up, it
// fills the core's numeric factories, function slots and memory factory.
// Each test starts the library in a child process of its own.
#include "Quilon_/Basic/Tolerance.h"
#include "Quilon_/Library.h"
#include "Quilon_/Math/Approximator.h"
#include "Quilon_/Math/Interval.h"
#include "Quilon_/Math/Matrix.h"
#include "Quilon_/Math/Range.h"
#include "Quilon_/System/Memory.h"
#include "Quilon_/System/String.h"

#include "../Support/BasicLibrary.h"
#include "../Support/InChildProcess.h"
#include "../Support/Raised.h"

#include <gtest/gtest.h>

#include <cmath>

namespace Quilon_::Tests::BasicLibrary {

using namespace Quilon_::Math;
using System::Pointer;
using Matrix = Pointer<IMatrixD, 1>;

void ExpectMatrix(const Matrix& actual, std::int64_t rows, std::int64_t columns, const std::vector<double>& expected)
{
    ASSERT_EQ(actual->Rows(), rows);
    ASSERT_EQ(actual->Columns(), columns);
    const std::vector<double> values = actual->Values();
    for (std::size_t i = 0; i < expected.size(); ++i)
        EXPECT_NEAR(values[i], expected[i], 1e-12) << "element " << i;
}

TEST(BasicLibrary, StartUpFillsTheSlotsAndSetsTheFirstTolerance)
{
    InChildProcess([] {
        EXPECT_EQ(RaisedMessage([] { MatrixD::Identity(2); }), L"Function has no implementation");
        EXPECT_FALSE(MatrixD::EigenVectorsFunction1IsImplemented());
        StartBasic();
        EXPECT_TRUE(MatrixD::IdentityFunction1IsImplemented());
        EXPECT_TRUE(MatrixD::MultiplyFunction3IsImplemented());
        EXPECT_TRUE(MatrixD::EigenVectorsFunction1IsImplemented());
        EXPECT_EQ(Approximator::DefaultApproximator()->Epsilon(), Basic::DefaultTolerance);
        EXPECT_EQ(Approximator::New()->Epsilon(), Basic::DefaultTolerance);
    });
}

TEST(BasicLibrary, MatricesAreMadeCheckedAndMultiplied)
{
    InChildProcess([] {
        StartBasic();
        Matrix zeros = MatrixD::New(2, 3);
        ExpectMatrix(zeros, 2, 3, {0, 0, 0, 0, 0, 0});
        Matrix a = MatrixD::New(2, 3, {1, 2, 3, 4, 5, 6});
        EXPECT_EQ(a->Value(1, 0), 4);
        EXPECT_EQ(RaisedMessage([&] { a->Value(2, 0); }), L"Element (2, 0) is outside a 2 x 3 matrix");
        EXPECT_EQ(RaisedMessage([] { MatrixD::New(2, 2, {1, 2, 3}); }), L"A 2 x 2 matrix needs 4 values, not 3");
        ExpectMatrix(a->Transposed(), 3, 2, {1, 4, 2, 5, 3, 6});
        a->Resize(3, 2);
        ExpectMatrix(a, 3, 2, {1, 2, 4, 5, 0, 0});

        Matrix b = MatrixD::New(3, 2, {1, 0, 0, 1, 2, 2});
        Matrix c = MatrixD::New(2, 3, {1, 2, 3, 4, 5, 6});
        ExpectMatrix(MatrixD::Multiply(c, b), 2, 2, {7, 8, 16, 17});
        ExpectMatrix(MatrixD::Multiply(c, MatrixD::Identity(3)), 2, 3, {1, 2, 3, 4, 5, 6});
        EXPECT_EQ(MatrixD::Multiply(c, std::vector<double>{1, 0, -1}), (std::vector<double>{-2, -2}));
        ExpectMatrix(MatrixD::Multiply(c, 0.5), 2, 3, {0.5, 1, 1.5, 2, 2.5, 3});
        EXPECT_EQ(RaisedMessage([&] { MatrixD::Multiply(c, c); }),
                  L"Cannot multiply a 2 x 3 matrix by a 2 x 3 matrix");
        EXPECT_EQ(RaisedMessage([&] { MatrixD::Multiply(c, std::vector<double>{1}); }),
                  L"Cannot multiply a 2 x 3 matrix by a vector of 1 values");
    });
}

TEST(BasicLibrary, InverseOfARegularMatrixAndFailureOnASingularOne)
{
    InChildProcess([] {
        StartBasic();
        // The first pivot is 0, so the rows must be exchanged.
        Matrix a = MatrixD::New(3, 3, {0, 2, 1, 1, 1, 0, 3, 0, 1});
        ExpectMatrix(MatrixD::Multiply(a, MatrixD::Inverse(a)), 3, 3, {1, 0, 0, 0, 1, 0, 0, 0, 1});
        ExpectMatrix(MatrixD::Inverse(MatrixD::New(2, 2, {4, 7, 2, 6})), 2, 2, {0.6, -0.7, -0.2, 0.4});

        EXPECT_EQ(RaisedMessage([] { MatrixD::Inverse(MatrixD::New(3, 3, {1, 2, 3, 4, 5, 6, 7, 8, 9})); }),
                  L"The matrix is singular and has no inverse");
        EXPECT_EQ(RaisedMessage([] { MatrixD::Inverse(MatrixD::New(2, 2)); }),
                  L"The matrix is singular and has no inverse");
        EXPECT_EQ(RaisedMessage([] { MatrixD::Inverse(MatrixD::New(2, 3)); }),
                  L"The matrix must be square, not 2 x 3");
    });
}

TEST(BasicLibrary, DiagonalAndSymmetryAreTestedWithinTheTolerance)
{
    InChildProcess([] {
        StartBasic();
        Matrix nearlyDiagonal = MatrixD::New(2, 2, {1, 1e-7, -1e-7, 2});
        EXPECT_TRUE(MatrixD::IsDiagonal(nearlyDiagonal, 1e-6));
        EXPECT_FALSE(MatrixD::IsDiagonal(nearlyDiagonal, 1e-8));
        EXPECT_TRUE(MatrixD::IsSymmetrical(nearlyDiagonal, 1e-6));
        EXPECT_FALSE(MatrixD::IsSymmetrical(nearlyDiagonal, 1e-8));
        EXPECT_FALSE(MatrixD::IsSymmetrical(MatrixD::New(2, 3), 1));
    });
}

TEST(BasicLibrary, EigenVectorsOfASymmetricMatrixByDescendingEigenvalue)
{
    InChildProcess([] {
        StartBasic();
        // The second difference matrix: eigenvalues 2 + sqrt 2, 2, 2 - sqrt 2.
        Matrix a = MatrixD::New(3, 3, {2, -1, 0, -1, 2, -1, 0, -1, 2});
        Matrix vectors = MatrixD::EigenVectors(a);
        const double root2 = std::sqrt(2.0);
        const double eigenvalues[] = {2 + root2, 2, 2 - root2};
        const std::vector<std::vector<double>> expected = {
            {0.5, -root2 / 2, 0.5}, {root2 / 2, 0, -root2 / 2}, {0.5, root2 / 2, 0.5}};
        for (std::int64_t column = 0; column < 3; ++column) {
            std::vector<double> v(3);
            for (std::int64_t row = 0; row < 3; ++row)
                v[static_cast<std::size_t>(row)] = vectors->Value(row, column);
            // Either sign is an eigenvector.
            const double sign = v[0] * expected[column][0] + v[2] * expected[column][2] < 0 ? -1 : 1;
            const std::vector<double> mapped = MatrixD::Multiply(a, v);
            for (std::size_t i = 0; i < 3; ++i) {
                EXPECT_NEAR(sign * v[i], expected[column][i], 1e-12) << "column " << column;
                EXPECT_NEAR(mapped[i], eigenvalues[column] * v[i], 1e-12) << "column " << column;
            }
        }
        ExpectMatrix(MatrixD::EigenVectors(MatrixD::New(2, 2, {1, 0, 0, 5})), 2, 2, {0, 1, 1, 0});
        EXPECT_EQ(RaisedMessage([] { MatrixD::EigenVectors(MatrixD::New(2, 2, {1, 2, 0, 1})); }),
                  L"Eigenvectors are computed for symmetric matrices only");
    });
}

TEST(BasicLibrary, RangesIntervalsAndMemoryBlocks)
{
    InChildProcess([] {
        StartBasic();
        Pointer<IRange> range = Range::New(std::int64_t(3), std::int64_t(12));
        EXPECT_EQ(range->Maximum() - range->Minimum(), 9);
        EXPECT_EQ(Range::New()->Maximum(), 0);
        Pointer<IRangeD> bytes = RangeD::New(0.0, 255.0);
        bytes->SetMaximum(1.0);
        EXPECT_EQ(bytes->Maximum(), 1.0);

        Pointer<IIntervalD> band = IntervalD::New(0.25, 0.75);
        EXPECT_TRUE(band->Contains(0.25) && band->Contains(0.75));
        EXPECT_FALSE(band->Contains(0.8) || band->Contains(std::nan("")));
        Pointer<IIntervalD> three = IntervalD::New(std::int64_t(3));
        EXPECT_EQ(three->Minimum(), 3);
        EXPECT_EQ(three->Maximum(), 3);
        EXPECT_EQ(IntervalD::New()->Maximum(), 0);

        Pointer<System::IMemory> block = System::Memory::New(std::int64_t(16), true);
        EXPECT_TRUE(block->OwnsData());
        EXPECT_EQ(static_cast<unsigned char*>(block->Data())[15], 0);
        block->Resize(4);
        EXPECT_EQ(block->Size(), 4);
        Pointer<System::IMemory> empty = System::Memory::New(std::int64_t(0), false);
        empty->CopyFrom(nullptr, 0, 0); // nothing to copy into an empty block, and no null handed on

        unsigned char bytesOfCaller[4] = {1, 2, 3, 4};
        Pointer<System::IMemory> view = System::Memory::New(bytesOfCaller, std::int64_t(4));
        EXPECT_FALSE(view->OwnsData());
        const unsigned char nine = 9;
        view->CopyFrom(&nine, 1, 3);
        EXPECT_EQ(bytesOfCaller[3], 9) << "a view writes through to the caller's bytes";
        EXPECT_EQ(RaisedMessage([&] { view->Resize(8); }), L"A block around bytes it does not own cannot be resized");
    });
}

} // namespace Quilon_::Tests::BasicLibrary
