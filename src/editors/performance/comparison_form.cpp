#include "editors/performance/comparison_form.h"

#include "data/format/numbers.h"
#include "data/format/texts.h"
#include "data/format/words.h"

#include <algorithm>
#include <cmath>

namespace varrocade {

namespace {

struct FigureTerms {
    std::string_view name;
    std::string_view unit;
    double ComparedVehicle::*value;
    double divisor;
};

constexpr double KilogramsPerTonne = 1000.0;

/// By `ComparedFigure`.
constexpr std::array<FigureTerms, 4> Figures = {{
    {"Weight", "t", &ComparedVehicle::weight, KilogramsPerTonne},
    {"Estimated weight", "t", &ComparedVehicle::estimate, KilogramsPerTonne},
    {"Power to weight", "hp/t", &ComparedVehicle::powerToWeight, 1.0},
    {"Road speed", "km/h", &ComparedVehicle::roadSpeed, 1.0},
}};

const FigureTerms& termsOf(ComparedFigure figure) {
    return Figures[static_cast<std::size_t>(figure)];
}

double valueOf(const ComparedVehicle& vehicle, ComparedFigure figure) {
    const FigureTerms& terms = termsOf(figure);
    return vehicle.*terms.value / terms.divisor;
}

std::string countText(std::size_t count) {
    return grouped(static_cast<std::int32_t>(count));
}

std::string knownFigure(double value, int decimals) {
    std::string text;
    if (value > 0) {
        appendFixed(text, value, decimals);
    }
    return text;
}

} // namespace

std::vector<std::string> comparedFigureChoices() {
    std::vector<std::string> choices;
    choices.reserve(Figures.size());
    for (const FigureTerms& terms : Figures) {
        choices.push_back(std::string(terms.name) + " (" + std::string(terms.unit) + ")");
    }
    return choices;
}

ComparisonPoints comparisonPoints(std::span<const ComparedVehicle> vehicles, std::string_view open,
                                  ComparedFigure across, ComparedFigure upwards) {
    ComparisonPoints points;
    points.chart.horizontal = termsOf(across).unit;
    points.chart.vertical = termsOf(upwards).unit;
    for (std::size_t i = 0; i < vehicles.size(); ++i) {
        const ComparedVehicle& vehicle = vehicles[i];
        const ChartPoint place = {valueOf(vehicle, across), valueOf(vehicle, upwards)};
        if (place.x > 0 && place.y > 0) {
            points.chart.points.push_back({.place = place,
                                           .isOpen = equalsIgnoringCase(vehicle.name, open),
                                           .isOutlier = !vehicle.faults.empty(),
                                           .name = vehicle.name});
            points.places.push_back(i);
        }
    }
    return points;
}

std::string comparedSentence(const ComparedVehicle& vehicle) {
    std::string text = vehicle.name;
    for (std::size_t i = 0; i < Figures.size(); ++i) {
        const double value = valueOf(vehicle, static_cast<ComparedFigure>(i));
        if (value > 0) {
            std::string name(Figures[i].name);
            name.front() = static_cast<char>(name.front() - 'A' + 'a');
            text += ", " + name + " " + knownFigure(value, 1) + " " + std::string(Figures[i].unit);
        }
    }
    for (const std::string& fault : vehicle.faults) {
        text += ". " + fault.substr(0, fault.size() - 1);
    }
    return text + ".";
}

std::string progressText(const VehicleComparison& comparison) {
    const WalkProgress progress = comparison.progress();
    if (!comparison.isDone()) {
        return "Reading " + countText(progress.done) + " of " + countText(progress.total) + ": " +
               std::string(progress.name);
    }
    const auto& vehicles = comparison.vehicles();
    const auto faulty = std::count_if(vehicles.begin(), vehicles.end(),
                                      [](const ComparedVehicle& one) { return !one.faults.empty(); });
    std::string text = countText(vehicles.size()) + (vehicles.size() == 1 ? " vehicle, " : " vehicles, ") +
                       (faulty == 0 ? "none" : countText(static_cast<std::size_t>(faulty))) + " out of line.";
    if (!comparison.failures().empty()) {
        const FileFailure& first = comparison.failures().front();
        text += " " + countText(comparison.failures().size()) +
                " could not be read, the first: " + first.path + ": " + first.reason;
    }
    return text;
}

std::vector<OutlierRow> outlierRows(std::span<const ComparedVehicle> vehicles) {
    std::vector<OutlierRow> rows;
    for (std::size_t i = 0; i < vehicles.size(); ++i) {
        for (const std::string& fault : vehicles[i].faults) {
            rows.push_back({.vehicle = i, .cells = {vehicles[i].name, fault}});
        }
    }
    return rows;
}

std::string comparisonTable(std::span<const ComparedVehicle> vehicles) {
    std::string table =
        "Vehicle\tWeight (kg)\tEstimated weight (kg)\tPower to weight (hp/t)\tRoad speed (km/h)\t"
        "Out of line\r\n";
    for (const ComparedVehicle& vehicle : vehicles) {
        table += vehicle.name + "\t" + knownFigure(vehicle.weight, 0) + "\t" +
                 knownFigure(vehicle.estimate, 0) + "\t" + knownFigure(vehicle.powerToWeight, 1) + "\t" +
                 knownFigure(vehicle.roadSpeed, 1) + "\t";
        for (std::size_t i = 0; i < vehicle.faults.size(); ++i) {
            table += (i == 0 ? "" : " ") + vehicle.faults[i];
        }
        table += "\r\n";
    }
    return table;
}

} // namespace varrocade
