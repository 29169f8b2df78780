#include "editors/squad/squad_form.h"

#include "data/unit_fields.h"
#include "editors/unit/description_rows.h"
#include "resources/resource.h"

#include <array>

namespace varrocade {

namespace {

struct OfAircraft {
    static auto& in(auto& squad) { return *squad.aircraft; }
};

constexpr auto QualityRows = std::to_array<description_rows::SquadRow>({
    {IDC_QUALITY, field::Quality},
});

constexpr auto AircraftRows = std::to_array<description_rows::SquadRow>({
    {IDC_AIRCRAFT_IMAGE, OfAircraft(), field::AircraftImage},
    {IDC_AIRCRAFT_SOUND, OfAircraft(), field::AircraftSound},
    {IDC_AIRCRAFT_SPEED, OfAircraft(), field::AircraftSpeed},
    {IDC_EJECTS_FLARES, OfAircraft(), field::EjectsFlares},
});

constexpr auto AllSquadRows = description_rows::joined(description_rows::Names, QualityRows);
constexpr auto AllAircraftRows = description_rows::joined(description_rows::Names, AircraftRows);

constexpr FormShape<SquadRecord> SquadOnFootShape = {.rows = AllSquadRows};
constexpr FormShape<SquadRecord> AircraftShape = {.rows = AllAircraftRows};

} // namespace

const FormShape<SquadRecord>& squadShape() {
    return SquadOnFootShape;
}

const FormShape<SquadRecord>& aircraftShape() {
    return AircraftShape;
}

} // namespace varrocade
