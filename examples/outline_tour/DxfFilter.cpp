#include "DxfFilter.h"

#include "DxfGroups.h"
#include "Limits.h"

#include "common/Problem.h"
#include "common/Text.h"

#include <cmath>
#include <iterator>
#include <optional>
#include <vector>

namespace example::tour
{

namespace
{

/// An entity of a drawing. A POLYLINE has its vertices and their end mark among its parts.
struct Entity
{
    std::string_view type;
    std::size_t line = 0;
    std::vector<DxfGroup> groups;
    std::vector<Entity> parts;
};

/// Bits of the flags of a polyline and of a vertex.
constexpr int Polyline3dOrMesh = 8 | 16 | 64;
constexpr int VertexOfSplineFrame = 16;

[[noreturn]] void Refuse(const Entity& entity, const std::string& what)
{
    throw Problem("the " + std::string(entity.type) + " in line " + std::to_string(entity.line) + " " + what);
}

double NumberOf(const DxfGroup& group, double bound)
{
    const std::optional<double> value = ParseNumber(group.value);
    if (!value)
    {
        throw Problem("line " + std::to_string(group.line + 1) + " holds " + Quoted(group.value) +
                      " where a number belongs");
    }
    if (std::abs(*value) > bound)
    {
        throw Problem("line " + std::to_string(group.line + 1) + " holds " + Quoted(group.value) +
                      ", which is beyond the " + Short(bound, 0) + " served here");
    }
    return *value;
}

int IntegerOf(const DxfGroup& group)
{
    const std::optional<int> value = ParseInteger(group.value);
    if (!value)
    {
        throw Problem("line " + std::to_string(group.line + 1) + " holds " + Quoted(group.value) +
                      " where a whole number belongs");
    }
    return *value;
}

int IntegerOr(const Entity& entity, int code, int otherwise)
{
    for (const DxfGroup& group : entity.groups)
    {
        if (group.code == code)
        {
            return IntegerOf(group);
        }
    }
    return otherwise;
}

double NumberOr(const Entity& entity, int code, double otherwise)
{
    for (const DxfGroup& group : entity.groups)
    {
        if (group.code == code)
        {
            return NumberOf(group, GreatestCoordinate);
        }
    }
    return otherwise;
}

/// The entities of the section ENTITIES, VERTEX and SEQEND still apart from the POLYLINE to which they belong.
std::vector<Entity> EntitiesOf(const std::vector<DxfGroup>& groups)
{
    std::vector<Entity> entities;
    bool inside = false;
    bool inEntity = false;
    for (std::size_t i = 0; i < groups.size(); ++i)
    {
        const DxfGroup& group = groups[i];
        if (group.code != DxfStart)
        {
            if (inEntity)
            {
                entities.back().groups.push_back(group);
            }
        }
        else if (group.value == "SECTION" || group.value == "ENDSEC")
        {
            const bool named = group.value == "SECTION" && i + 1 < groups.size() && groups[i + 1].code == DxfName;
            inside = named && groups[i + 1].value == "ENTITIES";
            inEntity = false;
        }
        else if (inside)
        {
            entities.push_back({group.value, group.line, {}, {}});
            inEntity = true;
        }
    }
    return entities;
}

/// Gives each POLYLINE its vertices.
std::vector<Entity> WithParts(std::vector<Entity> flat)
{
    std::vector<Entity> entities;
    bool open = false;
    for (Entity& entity : flat)
    {
        const bool isPart = entity.type == "VERTEX" || entity.type == "SEQEND";
        if (open && !isPart)
        {
            Refuse(entities.back(), "is not closed by a SEQEND");
        }
        if (open)
        {
            open = entity.type == "VERTEX";
            entities.back().parts.push_back(std::move(entity));
        }
        else
        {
            open = entity.type == "POLYLINE";
            entities.push_back(std::move(entity));
        }
    }
    if (open)
    {
        Refuse(entities.back(), "is not closed by a SEQEND");
    }
    return entities;
}

/// Why a polyline is left aside; empty if it is read.
std::string ReasonToLeaveAside(const Entity& polyline)
{
    if (IntegerOr(polyline, DxfPaperSpace, 0) != 0)
    {
        return "in paper space";
    }
    if (polyline.type == "POLYLINE" && (IntegerOr(polyline, DxfFlags, 0) & Polyline3dOrMesh) != 0)
    {
        return "in space";
    }
    // A polyline drawn on the underside of the plane is mirrored; on any other plane it isn't an outline of this one.
    const bool upright = NumberOr(polyline, DxfExtrusionX, 0) == 0 && NumberOr(polyline, DxfExtrusionY, 0) == 0 &&
                         std::abs(NumberOr(polyline, DxfExtrusionZ, 1)) == 1;
    return upright ? "" : "tilted";
}

/// Checks x, y and bulge of the vertices in a list of groups, each of which begins with its x.
/// @return the number of vertices
std::size_t CheckVertices(const Entity& entity)
{
    std::size_t count = 0;
    bool hasY = true;
    for (const DxfGroup& group : entity.groups)
    {
        if (group.code != DxfX && group.code != DxfY && group.code != DxfBulge)
        {
            continue;
        }
        NumberOf(group, group.code == DxfBulge ? GreatestBulge : GreatestCoordinate);
        const bool begins = group.code == DxfX;
        if (begins != hasY && group.code != DxfBulge)
        {
            Refuse(entity, "has a vertex without both coordinates");
        }
        if (count == 0 && !begins)
        {
            Refuse(entity, "begins in the middle of a vertex");
        }
        hasY = group.code == DxfBulge ? hasY : !begins;
        count += begins ? 1 : 0;
    }
    if (!hasY)
    {
        Refuse(entity, "has a vertex without both coordinates");
    }
    return count;
}

/// LWPOLYLINE: the count comes first, and must be that of the vertices.
std::size_t CheckLightPolyline(const Entity& polyline)
{
    bool announced = false;
    for (const DxfGroup& group : polyline.groups)
    {
        if (group.code == DxfX && !announced)
        {
            Refuse(polyline, "has a vertex before the number of vertices");
        }
        if (group.code == DxfVertexCount && announced)
        {
            Refuse(polyline, "tells its number of vertices twice");
        }
        announced = announced || group.code == DxfVertexCount;
    }
    const std::size_t count = CheckVertices(polyline);
    const int told = IntegerOr(polyline, DxfVertexCount, -1);
    if (told < 0 || static_cast<std::size_t>(told) != count)
    {
        Refuse(polyline, "announces " + (announced ? std::to_string(told) : std::string("no number of")) +
                             " vertices and has " + std::to_string(count));
    }
    return count;
}

/// POLYLINE: every part but the last is a vertex; those that only frame a spline are taken out.
std::size_t CheckHeavyPolyline(Entity& polyline)
{
    std::vector<Entity> kept;
    for (Entity& part : polyline.parts)
    {
        if (part.type == "VERTEX")
        {
            if ((IntegerOr(part, DxfFlags, 0) & VertexOfSplineFrame) != 0)
            {
                continue;
            }
            if (CheckVertices(part) != 1)
            {
                Refuse(part, "is not one vertex");
            }
        }
        kept.push_back(std::move(part));
    }
    polyline.parts = std::move(kept);
    return polyline.parts.size() - 1;
}

void Write(std::string& text, int code, std::string_view value)
{
    text += std::to_string(code);
    text += '\n';
    text += value;
    text += '\n';
}

/// Writes an entity with the groups that make up a polyline and no others.
void Write(std::string& text, const Entity& entity)
{
    const bool ownPointIsNone = entity.type == "POLYLINE";
    Write(text, DxfStart, entity.type);
    Write(text, DxfLayer, "0");
    for (const DxfGroup& group : entity.groups)
    {
        switch (group.code)
        {
        case DxfX:
        case DxfY:
        case DxfBulge:
            if (!ownPointIsNone)
            {
                Write(text, group.code, group.value);
            }
            break;
        case DxfFlags:
        case DxfVertexCount:
        case DxfExtrusionX:
        case DxfExtrusionY:
        case DxfExtrusionZ:
            Write(text, group.code, group.value);
            break;
        default:
            break;
        }
    }
    for (const Entity& part : entity.parts)
    {
        Write(text, part);
    }
}

void AddPolyline(Entity& entity, FilteredDxf& result)
{
    const std::string reason = ReasonToLeaveAside(entity);
    if (!reason.empty())
    {
        ++result.others[std::string(entity.type) + " " + reason];
        return;
    }
    IntegerOr(entity, DxfFlags, 0); // refuses what is no number
    const std::size_t vertices = entity.type == "POLYLINE" ? CheckHeavyPolyline(entity) : CheckLightPolyline(entity);
    result.vertexCount += vertices;
    if (result.vertexCount > GreatestSegmentCount)
    {
        throw Problem("the drawing has more than the " + std::to_string(GreatestSegmentCount) +
                      " vertices served here");
    }
    ++result.polylineCount;
    Write(result.text, entity);
}

} // namespace

FilteredDxf FilterDxf(const std::string& text)
{
    FilteredDxf result;
    Write(result.text, DxfStart, "SECTION");
    Write(result.text, DxfName, "ENTITIES");
    for (Entity& entity : WithParts(EntitiesOf(SplitIntoGroups(text))))
    {
        if (entity.type == "LWPOLYLINE" || entity.type == "POLYLINE")
        {
            AddPolyline(entity, result);
        }
        else
        {
            ++result.others[std::string(entity.type)];
        }
    }
    Write(result.text, DxfStart, "ENDSEC");
    Write(result.text, DxfStart, "EOF");
    return result;
}

} // namespace example::tour
