// The options and results of the registration operators of
// Images::Matching::Functions: plain records with a getter and a setter per
// field, compared field by field, and boxed so that they pass through
// operator arguments:
//
//   Images::Matching::BBFAffineMatchingOptions options;
//   options.SetThreshold(80);
//   Images::Matching::BBFAffineMatchingResults results;
//   Images::Matching::Functions::Register(fixed, moving, registered, options, results);
//   std::int64_t matches = results.MatchCount();
#pragma once

#include "Quilon_/Drawing/Point.h"
#include "Quilon_/System/Any.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Quilon_::Images::Matching {

// Key points found by the best-bin-first search, matched under an affine map.
class QUILON_API BBFAffineMatchingOptions {
public:
    // The same result for the same images, at some cost in speed.
    bool Deterministic() const { return deterministic; }
    void SetDeterministic(bool value) { deterministic = value; }
    // The lowest response of a key point; 0 lets the operator choose.
    std::int64_t HessianThreshold() const { return hessianThreshold; }
    void SetHessianThreshold(std::int64_t value) { hessianThreshold = value; }
    bool KeepKeyPointOrientation() const { return keepKeyPointOrientation; }
    void SetKeepKeyPointOrientation(bool value) { keepKeyPointOrientation = value; }
    // How close two descriptors must be to match, in percent.
    std::int64_t Threshold() const { return threshold; }
    void SetThreshold(std::int64_t value) { threshold = value; }
    // Fill the matched key points of the results.
    bool RetrieveMatchedKeyPoints() const { return retrieveMatchedKeyPoints; }
    void SetRetrieveMatchedKeyPoints(bool value) { retrieveMatchedKeyPoints = value; }

    bool operator==(const BBFAffineMatchingOptions&) const = default;

private:
    bool deterministic = true;
    std::int64_t hessianThreshold = 0;
    bool keepKeyPointOrientation = false;
    std::int64_t threshold = 50;
    bool retrieveMatchedKeyPoints = false;
};

class QUILON_API BBFAffineMatchingResults {
public:
    using KeyPoints = std::vector<Drawing::Point<int>>;

    std::int64_t KeyPointCount1() const { return keyPointCount1; }
    void SetKeyPointCount1(std::int64_t value) { keyPointCount1 = value; }
    std::int64_t KeyPointCount2() const { return keyPointCount2; }
    void SetKeyPointCount2(std::int64_t value) { keyPointCount2 = value; }
    std::int64_t MatchCount() const { return matchCount; }
    void SetMatchCount(std::int64_t value) { matchCount = value; }
    std::int64_t OutlierCount() const { return outlierCount; }
    void SetOutlierCount(std::int64_t value) { outlierCount = value; }
    std::int64_t Error() const { return error; }
    void SetError(std::int64_t value) { error = value; }
    // The matched points of the first and of the second image, pair by pair.
    const KeyPoints& MatchedKeyPoints1() const { return matchedKeyPoints1; }
    void SetMatchedKeyPoints1(const KeyPoints& value) { matchedKeyPoints1 = value; }
    const KeyPoints& MatchedKeyPoints2() const { return matchedKeyPoints2; }
    void SetMatchedKeyPoints2(const KeyPoints& value) { matchedKeyPoints2 = value; }

    bool operator==(const BBFAffineMatchingResults&) const = default;

private:
    std::int64_t keyPointCount1 = 0;
    std::int64_t keyPointCount2 = 0;
    std::int64_t matchCount = 0;
    std::int64_t outlierCount = 0;
    std::int64_t error = 0;
    KeyPoints matchedKeyPoints1;
    KeyPoints matchedKeyPoints2;
};

// Registration of tiles of one acquisition, laid out on a stage.
class QUILON_API DAMatchingOptions {
public:
    // What the images show, which decides the features matched.
    enum ImageTypeEnumTag : std::int32_t {
        itDarkField = 0,
        itBrightField = 1,
        itFluorescence = 2,
    };
    using ImageTypeEnum = ImageTypeEnumTag;
    // How the tiles lie: found by the operator, on a regular grid, or anywhere.
    enum LayoutTypeEnumTag : std::int32_t {
        ltAuto = 0,
        ltGrid = 1,
        ltFree = 2,
    };
    using LayoutTypeEnum = LayoutTypeEnumTag;

    ImageTypeEnum ImagesType() const { return imagesType; }
    void SetImagesType(ImageTypeEnum value) { imagesType = value; }
    LayoutTypeEnum LayoutType() const { return layoutType; }
    void SetLayoutType(LayoutTypeEnum value) { layoutType = value; }
    // 0 keeps to small corrections; higher values accept larger ones.
    std::int64_t AggressiveRegistrationPref() const { return aggressiveRegistrationPref; }
    void SetAggressiveRegistrationPref(std::int64_t value) { aggressiveRegistrationPref = value; }
    // With ltAuto, the preference for a grid over a free layout, in percent.
    std::int64_t LayoutPrefForAuto() const { return layoutPrefForAuto; }
    void SetLayoutPrefForAuto(std::int64_t value) { layoutPrefForAuto = value; }
    bool UseDistortionCorrection() const { return useDistortionCorrection; }
    void SetUseDistortionCorrection(bool value) { useDistortionCorrection = value; }

    bool operator==(const DAMatchingOptions&) const = default;

private:
    ImageTypeEnum imagesType = itBrightField;
    LayoutTypeEnum layoutType = ltAuto;
    std::int64_t aggressiveRegistrationPref = 1;
    std::int64_t layoutPrefForAuto = 50;
    bool useDistortionCorrection = true;
};

class QUILON_API DAMatchingResults {
public:
    // The kind of map the registration found.
    enum TransformTypeEnumTag : std::int32_t {
        ttNone = 0,
        ttTranslation = 1,
        ttRigid = 2,
        ttSimilarity = 3,
        ttAffine = 4,
        ttProjective = 5,
    };
    using TransformTypeEnum = TransformTypeEnumTag;

    // From 0 (no agreement) up; higher is better.
    double QualityMeasure() const { return qualityMeasure; }
    void SetQualityMeasure(double value) { qualityMeasure = value; }
    TransformTypeEnum TransformType() const { return transformType; }
    void SetTransformType(TransformTypeEnum value) { transformType = value; }

    bool operator==(const DAMatchingResults&) const = default;

private:
    double qualityMeasure = 0;
    TransformTypeEnum transformType = ttNone;
};

} // namespace Quilon_::Images::Matching

namespace Quilon_::System {
QUILON_API Any ToAny(const Images::Matching::BBFAffineMatchingOptions& value);
QUILON_API Any ToAny(const Images::Matching::BBFAffineMatchingResults& value);
QUILON_API Any ToAny(const Images::Matching::DAMatchingOptions& value);
QUILON_API Any ToAny(const Images::Matching::DAMatchingResults& value);
// The enumerators' names; the number for any other value.
QUILON_API std::wstring ToString(Images::Matching::DAMatchingOptions::ImageTypeEnum value);
QUILON_API std::wstring ToString(Images::Matching::DAMatchingOptions::LayoutTypeEnum value);
QUILON_API std::wstring ToString(Images::Matching::DAMatchingResults::TransformTypeEnum value);
} // namespace Quilon_::System
