#pragma once

#include "mesh/panels.hpp"
#include "mesh/triangle.hpp"
#include "mesh/v3.hpp"

#include <array>
#include <string>
#include <vector>

/// Hull surface of one floating body: panels, their placement, and the wetted part below a level.
///
/// Lengths in m, z up. Panel geometry is single precision; placement and levels are double. A mesh
/// without panels is valid. Panels without area are kept: their normals are not finite.
class bodyMesh {
public:
    std::string meshFile;             ///< as given to the constructor
    int nFaces = 0;                   ///< panels as read, doubled by every mirroring
    std::vector<triangle> faces;      ///< all panels, in file order
    std::vector<triangle> splitFaces; ///< sub-panels made by the cut
    /// The wetted surface: wholly submerged elements of `faces`, then all of `splitFaces`. Valid
    /// until the next cut, reading or mirroring.
    std::vector<triangle*> wetFaces;
    std::vector<triangle*> dryFaces;  ///< emptied by the cut, and not filled by it
    v3<float> origin;                 ///< the point that the mesh is placed by, in mesh coordinates
    std::array<double, 3> position{}; ///< of the body, global x, y, z
    std::array<double, 9> rotation{}; ///< applied to the panels, row-major
    std::array<double, 9> targetRotation{}; ///< for the next `rotate`, row-major
    double totalArea = 0;                   ///< m², of all panels as constructed

    /// An empty mesh, every field zero.
    bodyMesh() = default;
    /// Reads the file, moves the mesh so that the file's point `meshOrigin` becomes (0, 0, 0),
    /// places it at `bodyPosition` and cuts it at the global height `level` [m]. Both vectors hold
    /// at least 3 values. An unsupported file name extension ends the process with status 1.
    bodyMesh(std::string file, const std::vector<double>& meshOrigin,
             const std::vector<double>& bodyPosition, double level);
    // The wetted surface points into the mesh that it belongs to.
    bodyMesh(const bodyMesh&) = delete;
    bodyMesh& operator=(const bodyMesh&) = delete;
    bodyMesh(bodyMesh&&) = default;
    bodyMesh& operator=(bodyMesh&&) = default;
    ~bodyMesh() = default;

    // ---- Placement and sums (bodyMesh.cpp) ----

    /// Moves, places and cuts panels that were just read, as the constructor does.
    void place(const std::vector<double>& meshOrigin, const std::vector<double>& bodyPosition,
               double level);
    /// Sets `position` to p[0..2] [m]. The panels move with `translate`.
    void setPosition(const double* p);
    /// Sets `targetRotation` to R[0..8], a row-major 3 x 3 matrix. The panels turn with `rotate`.
    void setRotation(const double* R);
    /// Moves panels and sub-panels so that `origin` comes to `position`.
    void translate();
    /// Turns the panels from `rotation` to `targetRotation`. Sub-panels stay until the next cut.
    void rotate();
    /// The area of all panels [m²].
    double surfaceArea() const;
    /// Completes a half hull that is symmetric about the plane x = 0, or y = 0: with n = `nFaces`,
    /// panel n + i of the 2n becomes the image of panel i. Panels from n on are lost.
    void mirrorX();
    void mirrorY();
    /// Inertia matrix (row-major 3 x 3, about the mesh's zero) of `mass` [kg] spread evenly over
    /// the panels, each taken as a point mass at its centroid. Not finite if `totalArea` is 0.
    std::vector<double> shellInertia(double mass) const;
    /// Not implemented: prints a warning and returns `shellInertia`.
    std::vector<double> volumeInertia(double mass) const;
    /// Hydrostatic force [N] and moment [N m] about the mesh's zero (F[0..2] and F[3..5], resized
    /// to 6) on the wetted surface, under a free surface at the global height `elevation` [m];
    /// `factor` is water density times gravity [N/m³].
    void FroudeKrylovForces(const double& elevation, const double& factor,
                            std::vector<double>& F) const;
    /// Global coordinates of the panel centroids under `targetRotation` and `position`, 3 per
    /// panel: x, y, z of each panel, or, if `blocked`, all x, then all y, then all z.
    void faceCentresGlobal(std::vector<double>& out, bool blocked) const;

    // ---- Waterline cut (bodyMesh_cut.cpp) ----

    /// Cuts the panels at the global height `level` [m], rebuilds `splitFaces` and `wetFaces`, and
    /// prints the counts.
    ///
    /// A corner at the level counts as submerged. A cut panel whose submerged corners do not all
    /// lie deeper than a tolerance of 1e-4 is dropped: it counts neither as wet nor as dry nor as
    /// split.
    void updateWetSurface(const double& level);

    // ---- Files (bodyMesh_files.cpp); the headers of the formats say more ----
    // A file that cannot be read is an empty one. Writers overwrite, and report nothing.

    /// 0 for STL, 1 for GDF, 2 for Nemoh, -1 otherwise, by the last four characters of the name,
    /// which are printed. A name that is shorter is a std::out_of_range.
    static int chooseFrmt(const std::string& file);
    /// Reads a mesh in the format of its name; false where something is wrong with it. An
    /// unsupported extension ends the process with status 1.
    bool read(const std::string& file);
    /// Writes the mesh, or its wetted surface, in the format of the name; false, after a warning,
    /// for an unsupported extension. Nemoh files always hold the wetted surface. The file that the
    /// mesh came from is kept unless it can be replaced whole.
    bool write(const std::string& file, bool wetOnly);

    /// Whether the file is to be read as binary: all but "solid" in its first and "facet" in its
    /// second line, both in small letters or capitals.
    static bool stl_isbinary(const std::string& file);
    /// Appends the facets of a file; false where it breaks off.
    bool stl_read_ascii(const std::string& file);
    /// Replaces the panels by those of a file; false where it is shorter than it announces. A count
    /// beyond what memory can hold is fatal.
    bool stl_read(const std::string& file);
    /// Writes all panels, or the wetted surface.
    void stl_print_ascii(const std::string& file, bool wetOnly) const;
    void stl_print(const std::string& file, bool wetOnly) const;

    /// Appends the panels of a file and mirrors them where it says so; false where it holds fewer
    /// records than it announces.
    bool gdf_read(const std::string& file);
    /// Writes all panels, or the wetted surface, with the length scale `ULEN` [m] and the gravity
    /// `GRAV` [m/s²], which are not applied.
    void gdf_print(const std::string& file, bool wetOnly, double ULEN, double GRAV) const;

    /// Adds the numbers of node and panel lines to the counters and returns the symmetry flag.
    static int nemoh_readMeshInfo(const std::string& file, int& nNodes, int& nPanels);
    /// Appends the panels of a file, mirrors them where it says so, and returns `nFaces`. The line
    /// that ends the panels comes in as one more, of zero area at (0, 0, 0).
    int nemoh_read(const std::string& file);
    /// Writes the wetted surface, corners closer than 1e-5 merged, and returns the number of nodes.
    /// Warns unless `wetOnly`.
    int nemoh_print(const std::string& file, bool wetOnly) const;

private:
    sorvik::panelView panels(bool wetOnly) const;
};
