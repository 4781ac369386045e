/** Colours of the wetted and the dry part of the first, second, ... hull. They differ in lightness. */
const hullColours = [["#b8431a", "#ecd3b4"], ["#0072b2", "#b5d7ea"], ["#00785a", "#a9dccb"],
  ["#8f3f86", "#e3c3df"], ["#7a6200", "#ebdf9d"], ["#4a4a4a", "#c9c9c9"]];
/** Colour and glyph of a severity, so that it shows without colour too. */
const severities = {
  error: {colour: "#d55e00", glyph: "cross"},
  warning: {colour: "#e69f00", glyph: "triangle"},
  note: {colour: "#0072b2", glyph: "circle"},
};

function subtract(a, b) { return a.map((v, i) => v - b[i]); }
function cross(a, b) { return [a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]]; }

/** A hull of the page: its panels from the numbers, its part of the scene, and its elements. */
class ShownHull {
  constructor(stage, section, index, level) {
    const prefix = section.dataset.prefix;
    Object.assign(this, {stage, section, prefix, level});
    this.name = section.querySelector("h2").textContent;
    this.nodes = numbersOf(prefix + "nodes", Float32Array);
    this.faces = numbersOf(prefix + "faces", Uint32Array);
    this.buoyancy = listOf(section.dataset.buoyancy);
    this.colours = hullColours[index % hullColours.length];
    this.group = new THREE.Group();
    this.position = new THREE.BufferAttribute(this.nodes, 3);
    stage.scene.add(this.group);
    this.addSurfaces();
    this.waterline = this.addWaterline(numbersOf(prefix + "waterline", Float32Array));
    this.openEdges = this.addOpenEdges(numbersOf(prefix + "open", Uint32Array));
    this.edges = null;
    this.normals = null;
    const heading = section.querySelector("h2");
    heading.prepend(...this.colours.map((value, i) => {
      const swatch = document.createElement("span");
      swatch.className = "swatch";
      swatch.style.background = value;
      swatch.title = i === 0 ? "wetted" : "dry";
      return swatch;
    }));
  }

  corner(panel, i) {
    const node = 3 * this.faces[3 * panel + i % 3];
    return [this.nodes[node], this.nodes[node + 1], this.nodes[node + 2]];
  }

  /** Area [m2], centre [m], normal and place in the water of a panel. */
  facts(panel) {
    const [a, b, c] = [0, 1, 2].map(i => this.corner(panel, i));
    const product = cross(subtract(b, a), subtract(c, a));
    const length = Math.hypot(...product);
    const wet = [a, b, c].filter(p => p[2] <= this.level).length;
    return {
      area: length / 2,
      centre: a.map((v, i) => (v + b[i] + c[i]) / 3),
      normal: product.map(v => v / length),
      state: wet === 3 ? "wetted" : wet === 0 ? "dry" : "cut by the water plane",
    };
  }

  /** Panels at or below the level and pieces of the cut in one colour, the others in another. */
  addSurfaces() {
    const wet = [];
    const dry = [];
    for (let i = 0; i < this.faces.length; i += 3) {
      const [a, b, c] = [this.faces[i], this.faces[i + 1], this.faces[i + 2]];
      const isWet = [a, b, c].every(node => this.nodes[3 * node + 2] <= this.level);
      (isWet ? wet : dry).push(a, b, c);
    }
    const surface = (geometry, value, nearer) => {
      const material = new THREE.MeshPhongMaterial({color: value, specular: 0x181818, shininess: 12, flatShading: true,
        side: THREE.DoubleSide, polygonOffset: true, polygonOffsetFactor: 2 - nearer, polygonOffsetUnits: 2 - nearer});
      const mesh = new THREE.Mesh(geometry, material);
      this.group.add(mesh);
      return mesh;
    };
    const indexed = index => this.stage.geometryOf(this.position, index);
    const pieces = this.stage.geometryOf(new THREE.BufferAttribute(numbersOf(this.prefix + "pieces", Float32Array), 3));
    this.wet = surface(indexed(new Uint32Array(wet)), this.colours[0], 0);
    this.dry = surface(indexed(new Uint32Array(dry)), this.colours[1], 0);
    this.pieces = surface(pieces, this.colours[0], 1);
    // All panels in their order, for clicks only.
    this.all = new THREE.Mesh(indexed(this.faces), new THREE.MeshBasicMaterial({side: THREE.DoubleSide}));
  }

  addLines(points, material, parent = this.group) {
    const corners = new THREE.BufferAttribute(new Float32Array(points), 3);
    const lines = new THREE.LineSegments(this.stage.geometryOf(corners), material);
    parent.add(lines);
    return lines;
  }

  /** The waterline as a band, since lines are one pixel wide. */
  addWaterline(points) {
    const high = 0.004 * this.stage.size;
    const corners = [];
    for (let i = 0; i < points.length; i += 6) {
      const [ax, ay, az, bx, by, bz] = points.subarray(i, i + 6);
      corners.push(ax, ay, az - high, bx, by, bz - high, bx, by, bz + high,
        ax, ay, az - high, bx, by, bz + high, ax, ay, az + high);
    }
    const geometry = this.stage.geometryOf(new THREE.Float32BufferAttribute(corners, 3));
    const band = new THREE.Mesh(geometry, this.stage.follow(new THREE.MeshBasicMaterial({side: THREE.DoubleSide}), "--waterline"));
    band.add(this.addLines(points, band.material));
    this.group.add(band);
    return band;
  }

  addOpenEdges(edges) {
    const points = [];
    for (const edge of edges) {
      const panel = Math.floor(edge / 3);
      points.push(...this.corner(panel, edge % 3), ...this.corner(panel, edge % 3 + 1));
    }
    const lines = this.addLines(points, new THREE.LineBasicMaterial({color: severities.error.colour, depthTest: false}));
    lines.renderOrder = 2;
    lines.count = edges.length;
    return lines;
  }

  /** The edges of the panels of a mesh, as a part of it, so that they show with it. */
  addEdges(mesh) {
    const index = mesh.geometry.index;
    const count = index ? index.count : mesh.geometry.attributes.position.count;
    const at = i => (index ? index.array[i] : i);
    const edges = new Uint32Array(2 * count);
    for (let i = 0; i < count; ++i) {
      edges[2 * i] = at(i);
      edges[2 * i + 1] = at(i % 3 === 2 ? i - 2 : i + 1);
    }
    const geometry = this.stage.geometryOf(mesh.geometry.attributes.position, edges);
    const lines = new THREE.LineSegments(geometry, this.stage.follow(
      new THREE.LineBasicMaterial({transparent: true, opacity: 0.55}), "--edges"));
    mesh.add(lines);
    return lines;
  }

  showEdges(isOn) {
    if (isOn && !this.edges) {
      this.edges = [this.wet, this.dry, this.pieces].map(mesh => this.addEdges(mesh));
    }
    (this.edges || []).forEach(lines => { lines.visible = isOn; });
  }

  showNormals(isOn) {
    if (isOn && !this.normals) {
      const points = new Float32Array(2 * this.faces.length);
      const count = this.faces.length / 3;
      const length = 0.7 * this.stage.size / Math.sqrt(count + 100);
      for (let i = 0; i < count; ++i) {
        const {centre, normal} = this.facts(i);
        points.set(centre, 6 * i);
        points.set(centre.map((v, k) => v + (length * normal[k] || 0)), 6 * i + 3);
      }
      this.normals = this.addLines(points, this.stage.follow(new THREE.LineBasicMaterial(), "--accent"));
    }
    if (this.normals) {
      this.normals.visible = isOn;
    }
  }

  showCutOnly(isOn) {
    this.cutOnly = isOn;
    this.dry.visible = !isOn;
  }

  /** The first panel that a ray meets and that shows: its number from 0 and the distance, or null. */
  meet(ray) {
    if (!this.group.visible) {
      return null;
    }
    const hit = ray.intersectObject(this.all).find(each => !this.cutOnly || each.point.z <= this.level);
    return hit ? {hull: this, panel: hit.faceIndex, distance: hit.distance} : null;
  }
}

/** The places of one finding: marks over the picture, panels in its colour, and its list. */
class ShownFinding {
  constructor(hull, element) {
    const id = hull.prefix + "finding" + element.dataset.finding;
    this.hull = hull;
    this.points = numbersOf(id, Float32Array);
    this.panels = numbersOf(id + "Panels", Uint32Array);
    this.count = this.points.length / 3;
    this.style = severities[Object.keys(severities).find(level => element.classList.contains(level))];
    this.place = 0;
    this.isShown = this.count > 0 && this.style !== severities.note;
    if (this.count > 0) {
      this.addPanels();
      this.addControls(element);
    }
  }

  addPanels() {
    const index = [];
    for (const panel of this.panels) {
      if (panel > 0) {
        index.push(...this.hull.faces.subarray(3 * panel - 3, 3 * panel));
      }
    }
    const geometry = this.hull.stage.geometryOf(this.hull.position, new Uint32Array(index));
    this.mesh = new THREE.Mesh(geometry, new THREE.MeshBasicMaterial({color: this.style.colour, side: THREE.DoubleSide,
      transparent: true, opacity: 0.6, depthWrite: false}));
    this.mesh.visible = this.isShown;
    this.hull.group.add(this.mesh);
  }

  addControls(element) {
    const stage = this.hull.stage;
    const row = document.createElement("p");
    row.className = "steps";
    element.querySelector("h4").after(row);
    this.box = addSwitch(row, "Show", this.isShown, isOn => {
      this.isShown = isOn;
      this.mesh.visible = isOn;
      stage.draw();
    });
    addElement(row, "button", {type: "button", textContent: "\u25c0", title: "Previous place"})
      .addEventListener("click", () => this.goTo(this.place - 1));
    this.label = addElement(row, "button", {type: "button", title: "Go there"});
    this.label.addEventListener("click", () => this.goTo(this.place));
    addElement(row, "button", {type: "button", textContent: "\u25b6", title: "Next place"})
      .addEventListener("click", () => this.goTo(this.place + 1));
    this.setLabel();
    const more = element.querySelector(".more");
    if (more) {
      more.textContent += this.count > 10 ? ", of which the picture marks " + (this.count - 10) : "";
    }
    element.querySelectorAll(".places li").forEach((item, i) => {
      if (i < this.count) {
        const button = document.createElement("button");
        button.type = "button";
        button.className = "place";
        button.append(...item.childNodes);
        button.addEventListener("click", () => this.goTo(i));
        item.append(button);
      }
    });
  }

  setLabel() { this.label.textContent = "Place " + (this.place + 1) + " of " + this.count; }

  goTo(place) {
    this.place = (place + this.count) % this.count;
    this.setLabel();
    if (!this.isShown) {
      this.box.click();
    }
    const point = Array.from(this.points.subarray(3 * this.place, 3 * this.place + 3));
    const panel = this.panels[this.place];
    if (panel > 0) {
      showPanel(this.hull, panel - 1);
    }
    this.hull.stage.goTo(point, panel > 0 ? 6 * Math.sqrt(this.hull.facts(panel - 1).area) : 0);
  }

  paint(paint, project) {
    if (!this.isShown || !this.hull.group.visible) {
      return;
    }
    paint.strokeStyle = colour("--ink");
    paint.fillStyle = this.style.colour;
    paint.lineWidth = 1;
    for (let i = 0; i < this.points.length; i += 3) {
      drawGlyph(paint, this.style.glyph, project([this.points[i], this.points[i + 1], this.points[i + 2]]),
        i / 3 === this.place ? 7 : 5);
    }
  }
}

function drawGlyph(paint, glyph, {x, y}, size) {
  paint.beginPath();
  if (glyph === "circle") {
    paint.arc(x, y, size, 0, 7);
  } else if (glyph === "triangle") {
    paint.moveTo(x, y - size);
    paint.lineTo(x + size, y + size);
    paint.lineTo(x - size, y + size);
    paint.closePath();
  } else {
    const arm = size / 2;
    [[-1, -2], [0, -1], [1, -2], [2, -1], [1, 0], [2, 1], [1, 2], [0, 1], [-1, 2], [-2, 1], [-1, 0], [-2, -1]]
      .forEach(([dx, dy]) => paint.lineTo(x + dx * arm, y + dy * arm));
    paint.closePath();
  }
  paint.fill();
  paint.stroke();
}

/** A check box with its label. Returns the box. */
function addSwitch(parent, label, isOn, onChange) {
  const holder = addElement(parent, "label");
  const box = addElement(holder, "input", {type: "checkbox", checked: isOn});
  holder.append(" " + label);
  box.addEventListener("change", () => onChange(box.checked));
  return box;
}

/** The translucent water plane around the hulls. */
function addWater(stage, level) {
  const [width, length] = [0, 1].map(i => stage.high[i] - stage.low[i] + 0.5 * stage.size);
  const plane = new THREE.Mesh(new THREE.PlaneBufferGeometry(width, length), new THREE.MeshBasicMaterial(
    {color: "#56b4e9", transparent: true, opacity: 0.28, side: THREE.DoubleSide, depthWrite: false}));
  plane.position.set((stage.low[0] + stage.high[0]) / 2, (stage.low[1] + stage.high[1]) / 2, level);
  plane.renderOrder = 1;
  stage.scene.add(plane);
  return plane;
}

/** Arrows in the directions of the waves, towards the hulls. */
function addHeadings(stage, headings, level) {
  const [x, y] = [0, 1].map(i => (stage.low[i] + stage.high[i]) / 2);
  const near = 0.5 * Math.hypot(stage.high[0] - stage.low[0], stage.high[1] - stage.low[1]) + 0.06 * stage.size;
  const far = near + 0.16 * stage.size;
  headings.forEach(degrees => {
    const towards = [Math.cos(degrees * Math.PI / 180), Math.sin(degrees * Math.PI / 180), 0];
    const start = new THREE.Vector3(x - far * towards[0], y - far * towards[1], level);
    const arrow = new THREE.ArrowHelper(new THREE.Vector3(...towards), start, far - near, "#0072b2",
      0.05 * stage.size, 0.03 * stage.size);
    stage.follow(arrow.line.material, "--accent");
    stage.follow(arrow.cone.material, "--accent");
    stage.scene.add(arrow);
  });
  stage.onOverlay((paint, project) => headings.forEach(degrees => {
    const angle = degrees * Math.PI / 180;
    const out = far + 0.04 * stage.size;
    drawText(paint, shortNumber(degrees) + "\u00b0", project([x - out * Math.cos(angle), y - out * Math.sin(angle), level]));
  }));
}

/** The centre of buoyancy of a hull over the picture. */
function paintBuoyancy(paint, project, hull) {
  if (hull.buoyancy.length < 3 || !hull.group.visible) {
    return;
  }
  const place = project(hull.buoyancy);
  for (let quarter = 0; quarter < 4; ++quarter) {
    paint.beginPath();
    paint.moveTo(place.x, place.y);
    paint.arc(place.x, place.y, 7, quarter * Math.PI / 2, (quarter + 1) * Math.PI / 2);
    paint.fillStyle = quarter % 2 ? "#ffffff" : "#000000";
    paint.fill();
  }
  paint.beginPath();
  paint.arc(place.x, place.y, 7, 0, 7);
  paint.lineWidth = 1;
  paint.strokeStyle = "#000000";
  paint.stroke();
  drawText(paint, "B", {x: place.x + 15, y: place.y});
}

let showPanel = () => {};

/** Tells of the panel that is clicked, and marks it. */
function addPanelInfo(stage, hulls) {
  const row = addElement(stage.element, "p", {className: "panel"});
  const number = addElement(addElement(row, "label", {textContent: "Panel "}), "input", {type: "number", min: 1});
  const info = addElement(row, "output", {textContent: "Click on a panel, or give its number."});
  const marked = stage.follow(new THREE.MeshBasicMaterial({side: THREE.DoubleSide, depthTest: false, transparent: true,
    opacity: 0.65}), "--accent");
  const geometry = stage.geometryOf(new THREE.BufferAttribute(new Float32Array(9), 3));
  const mark = new THREE.Mesh(geometry, marked);
  mark.visible = false;
  mark.frustumCulled = false;
  mark.renderOrder = 3;
  stage.scene.add(mark);
  let last = hulls[0];
  showPanel = (hull, panel) => {
    const {area, centre, normal, state} = hull.facts(panel);
    const list = values => "(" + values.map(v => shortNumber(Math.abs(v) < 1e-9 ? 0 : v)).join(", ") + ")";
    last = hull;
    number.value = panel + 1;
    info.textContent = (hulls.length > 1 ? hull.name + ", panel " : "Panel ") + (panel + 1) + ", " + state + ": area " +
      shortNumber(area) + " m\u00b2, centre " + list(centre) + " m, normal " +
      (normal.every(Number.isFinite) ? list(normal) : "none");
    [0, 1, 2].forEach(i => geometry.attributes.position.array.set(hull.corner(panel, i), 3 * i));
    geometry.attributes.position.needsUpdate = true;
    mark.visible = true;
    stage.draw();
  };
  number.addEventListener("change", () => {
    const panel = Math.round(Number(number.value)) - 1;
    if (panel >= 0 && 3 * panel < last.faces.length) {
      showPanel(last, panel);
    } else {
      info.textContent = last.name + " has the panels 1 to " + last.faces.length / 3 + ".";
    }
  });
  stage.onPick(ray => {
    const hits = hulls.map(hull => hull.meet(ray)).filter(Boolean).sort((a, b) => a.distance - b.distance);
    if (hits.length > 0) {
      showPanel(hits[0].hull, hits[0].panel);
    }
  });
}

/** The switches of what is drawn, above the facts. */
function addSwitches(stage, hulls, water) {
  const set = document.createElement("fieldset");
  set.className = "switches";
  document.querySelector(".beside").prepend(set);
  addElement(set, "legend", {textContent: "Show"});
  const add = (label, isOn, change) => addSwitch(set, label, isOn, value => { change(value); stage.draw(); });
  const each = use => value => hulls.forEach(hull => use(hull, value));
  add("Panel edges", false, each((hull, isOn) => hull.showEdges(isOn)));
  add("Normals", false, each((hull, isOn) => hull.showNormals(isOn)));
  add("Only the cut", false, each((hull, isOn) => hull.showCutOnly(isOn)));
  add("Waterline", true, each((hull, isOn) => { hull.waterline.visible = isOn; }));
  add("Water plane", true, isOn => { water.visible = isOn; });
  const open = hulls.reduce((sum, hull) => sum + hull.openEdges.count, 0);
  add("Open edges (" + open + ")", open > 0, each((hull, isOn) => { hull.openEdges.visible = isOn; }));
  if (hulls.length > 1) {
    hulls.forEach(hull => add(hull.name, true, isOn => { hull.group.visible = isOn; }));
  }
}

/** Runs the page of hulls, and the part of a project's page that shows them. */
function showHulls() {
  const element = document.querySelector(".stage");
  const level = Number(element.dataset.level);
  const stage = makeStage(element, {low: listOf(element.dataset.low), high: listOf(element.dataset.high)});
  const sections = [...document.querySelectorAll("section.hull")];
  if (!stage || sections.length === 0) {
    return;
  }
  const hulls = sections.map((section, i) => new ShownHull(stage, section, i, level));
  const water = addWater(stage, level);
  addHeadings(stage, listOf(element.dataset.headings), level);
  addSwitches(stage, hulls, water);
  addPanelInfo(stage, hulls);
  hulls.forEach(hull => stage.onOverlay((paint, project) => paintBuoyancy(paint, project, hull)));
  hulls.forEach(hull => hull.section.querySelectorAll(".finding").forEach(item => {
    const finding = new ShownFinding(hull, item);
    stage.onOverlay((paint, project) => finding.paint(paint, project));
  }));
  stage.draw();
}
