#pragma once

#include "values.h"

#include <QString>

#include <optional>

// The bundle's "Device Profile" property list:
//
//   Features: dictionary, feature name → feature
//     feature: Properties (dictionary), Syntax (dictionary with one of
//              Keyword: dictionary, keyword → {Properties, Default}
//              Name, Number: dictionary that may hold Default)
namespace kelvo {

// Loads it once; a missing or unreadable resource leaves it unloaded, silently.
void KDPInitialize();
void KDPFinalize();

std::optional<Dictionary> KDPGetFeature(const QString &name);
// Feature dictionaries, in the order of their names; empty when nothing is loaded.
Array KDPGetFeaturesWithProperty(const QString &property);
Array KDPGetFeaturesWithPropertyAndValue(const QString &property, const QVariant &value);
std::optional<QVariant> KDPGetFeatureSyntax(const Dictionary &feature, const QString &key);
std::optional<QVariant> KDPGetFeatureProperty(const Dictionary &feature, const QString &property);
Array KDPGetKeywordsWithPropertyAndValue(const Dictionary &feature, const QString &property,
                                         const QVariant &value);
// The default's kind ("Keyword", "Name" or "Number") and value.
bool KDPGetFeatureDefaultValue(const Dictionary &feature, QString *outKind, QVariant *outValue);

// The property list at a file URL or path, or none when it cannot be read.
std::optional<QVariant> CreatePropertiesFromXMLFile(const QString &url);

} // namespace kelvo
