#include "colormatrix.h"

ColorMatrix ColorMatrix::saturation(float amount)
{
    ColorMatrix result;
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 3; ++column)
            result.m[row][column] = (1.0F - amount) * luminance[column] + (row == column ? amount : 0.0F);
    }
    return result;
}

ColorMatrix ColorMatrix::brightness(float bias)
{
    ColorMatrix result;
    result.offset = { bias, bias, bias };
    return result;
}

ColorMatrix ColorMatrix::contrast(float amount)
{
    return channels(
        { amount, amount, amount }, { 0.5F * (1.0F - amount), 0.5F * (1.0F - amount), 0.5F * (1.0F - amount) });
}

ColorMatrix ColorMatrix::channels(std::array<float, 3> scale, std::array<float, 3> bias)
{
    ColorMatrix result;
    for (int row = 0; row < 3; ++row)
        result.m[row][row] = scale[row];
    result.offset = bias;
    return result;
}

ColorMatrix ColorMatrix::grey(float low, float high)
{
    ColorMatrix result;
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 3; ++column)
            result.m[row][column] = (high - low) * luminance[column];
        result.offset[row] = low;
    }
    return result;
}

ColorMatrix ColorMatrix::operator*(const ColorMatrix &first) const
{
    ColorMatrix result;
    for (int row = 0; row < 3; ++row) {
        float bias = offset[row];
        for (int column = 0; column < 3; ++column) {
            float sum = 0.0F;
            for (int k = 0; k < 3; ++k)
                sum += m[row][k] * first.m[k][column];
            result.m[row][column] = sum;
            bias += m[row][column] * first.offset[column];
        }
        result.offset[row] = bias;
    }
    return result;
}
