/** Text and glyphs over the picture. */
function drawText(context, text, place, align) {
  context.textAlign = align || "center";
  context.lineWidth = 3;
  context.strokeStyle = colour("--paper");
  context.strokeText(text, place.x, place.y);
  context.fillStyle = colour("--ink");
  context.fillText(text, place.x, place.y);
}

/** Ticks of an axis from `low` to `high` [m] at round distances of at least `least`. */
function ticksOf(low, high, least) {
  const step = 10 * roundBelow(Math.max(least, (high - low) / 40) / 5);
  const ticks = [];
  for (let k = Math.ceil(low / step - 1e-9); k * step <= high + 1e-9 * step; ++k) {
    ticks.push(k * step);
  }
  return ticks;
}

/** Axes with ticks [m] along those edges of the stage's box that nothing hides. */
function paintAxes(paint, stage) {
  const {low, high} = stage;
  const project = point => stage.project(point);
  const gap = 0.03 * stage.size;
  const ends = [low.map(l => l - gap), high.map(h => h + gap)];
  const from = stage.direction();
  const near = from.map((d, i) => ends[(i === 2 ? d < -0.01 : d > 0) ? 1 : 0][i]);
  const left = [0, 1, 2, 3].map(i => [ends[i % 2][0], ends[i >> 1][1]])
    .sort((a, b) => project([...a, near[2]]).x - project([...b, near[2]]).x)[0];
  const middle = project(low.map((l, i) => (l + high[i]) / 2));
  ["x", "y", "z"].forEach((name, axis) => {
    const at = value => (axis === 2 ? [...left, value] : near.map((c, i) => (i === axis ? value : c)));
    const [begin, end] = [project(at(low[axis])), project(at(high[axis]))];
    const pixels = Math.hypot(end.x - begin.x, end.y - begin.y);
    if (pixels < 40) {
      return;
    }
    // Across the axis, away from the middle of the picture.
    let across = {x: (end.y - begin.y) / pixels, y: (begin.x - end.x) / pixels};
    if (across.x * (begin.x + end.x - 2 * middle.x) + across.y * (begin.y + end.y - 2 * middle.y) < 0) {
      across = {x: -across.x, y: -across.y};
    }
    const beside = (place, distance) => ({x: place.x + distance * across.x, y: place.y + distance * across.y});
    const ticks = ticksOf(low[axis], high[axis], 30 * (high[axis] - low[axis]) / pixels);
    paint.strokeStyle = colour("--faint");
    paint.lineWidth = 1;
    paint.beginPath();
    paint.moveTo(begin.x, begin.y);
    paint.lineTo(end.x, end.y);
    for (const value of ticks) {
      const place = project(at(value));
      paint.moveTo(place.x, place.y);
      paint.lineTo(beside(place, 5).x, beside(place, 5).y);
    }
    paint.stroke();
    ticks.forEach(value => drawText(paint, shortNumber(value), beside(project(at(value)), 16)));
    drawText(paint, name + " [m]", beside({x: (begin.x + end.x) / 2, y: (begin.y + end.y) / 2}, 38));
  });
}

/** Directions from which the stage is looked at: names, keys and the camera's place. */
const views = [
  {name: "Ahead", key: "1", from: [1, 0, 0]},
  {name: "Abeam", key: "2", from: [0, -1, 0]},
  {name: "Above", key: "3", from: [0, -1e-4, 1]},
  {name: "Oblique", key: "4", from: [0.55, -0.75, 0.45]},
];

/**
 * A picture in three dimensions in `element`, seen in parallel projection with z upwards, of what lies
 * between the points `low` and `high` [m]. Nothing is drawn unless `draw` asks for it.
 */
class Stage {
  constructor(element, canvas, context, low, high) {
    Object.assign(this, {element, canvas, context, low, high});
    this.size = Math.hypot(...high.map((h, i) => h - low[i])) || 1;
    this.middle = new THREE.Vector3(...low.map((l, i) => (l + high[i]) / 2));
    this.sphere = new THREE.Sphere(this.middle, this.size);
    this.overlays = [];
    this.picks = [];
    this.inks = [];
    this.renderer = new THREE.WebGLRenderer({canvas, context, alpha: true, preserveDrawingBuffer: true});
    this.renderer.setClearColor(0, 0);
    this.overlay = addElement(element, "canvas", {className: "overlay"});
    this.overlay.setAttribute("aria-hidden", "true");
    this.paper = this.overlay.getContext("2d");
    this.toolbar = addElement(element, "div", {className: "toolbar"});
    this.toolbar.setAttribute("role", "toolbar");
    this.addCamera();
    this.onOverlay(paint => paintAxes(paint, this));
    this.onOverlay(paint => drawScale(paint, this.shape(), (this.camera.top - this.camera.bottom) / this.camera.zoom));
    this.addButtons();
    canvas.addEventListener("keydown", event => this.press(event));
    this.listenToClicks();
    this.listenToPage();
  }

  addCamera() {
    const far = 10 * this.size;
    this.scene = new THREE.Scene();
    this.camera = new THREE.OrthographicCamera(-1, 1, 1, -1, -far, far);
    this.camera.up.set(0, 0, 1);
    const light = new THREE.DirectionalLight(0xffffff, 0.75);
    light.position.set(0.4, 0.7, 1);
    this.camera.add(light);
    this.scene.add(this.camera, new THREE.HemisphereLight(0xffffff, 0xb0b0b0, 0.45));
    this.controls = Object.assign(new THREE.OrbitControls(this.camera, this.canvas),
      {enableKeys: false, maxZoom: 1e5, minZoom: 0.02});
    this.controls.addEventListener("change", () => this.draw());
  }

  addButtons() {
    for (const {name, key, from} of views) {
      addToolbar(this, name, "View from: " + name + " (key " + key + ")", () => this.showAll(from));
    }
    addToolbar(this, "All", "Show all (key 0)", () => this.showAll());
    addToolbar(this, "+", "Zoom in (key +)", () => this.zoomBy(1.25));
    addToolbar(this, "\u2212", "Zoom out (key -)", () => this.zoomBy(0.8));
    addToolbar(this, "PNG", "Save the picture as PNG", () => this.savePicture());
  }

  // ---- Drawing ----

  /** A geometry in the stage of corners, three numbers each, which `index` lists where it is given. */
  geometryOf(corners, index) {
    const geometry = new THREE.BufferGeometry();
    geometry.setAttribute("position", corners);
    if (index) {
      geometry.setIndex(new THREE.BufferAttribute(index, 1));
    }
    geometry.boundingSphere = this.sphere;
    return geometry;
  }

  /** `paint(context, project)` draws over each picture; `project` gives the pixel of a point [m]. */
  onOverlay(paint) { this.overlays.push(paint); }

  /** A material's colour follows the page's style, light or dark. */
  follow(material, name) {
    this.inks.push({material, name});
    return material;
  }

  /** Asks for a picture. */
  draw() {
    if (!this.isAsked) {
      this.isAsked = true;
      requestAnimationFrame(() => { this.isAsked = false; this.drawMoving(); });
    }
  }

  drawNow() {
    this.inks.forEach(({material, name}) => material.color.set(colour(name)));
    this.renderer.render(this.scene, this.camera);
    const {width, height} = this.shape();
    const ratio = this.fullRatio();
    this.paper.setTransform(ratio, 0, 0, ratio, 0, 0);
    this.paper.clearRect(0, 0, width, height);
    this.paper.font = "12px sans-serif";
    this.paper.textBaseline = "middle";
    const project = point => this.project(point);
    this.overlays.forEach(paint => paint(this.paper, project));
  }

  /** Draws, coarsely while the picture moves where that takes long, as without a graphics card. */
  drawMoving() {
    const slow = 80; // ms
    const begin = performance.now();
    this.moves = begin - this.lastMove < 3000 ? this.moves + 1 : 0;
    if (this.isSlow && this.moves > 2) {
      this.resolve(0.5);
      clearTimeout(this.rest);
      this.rest = setTimeout(() => { this.resolve(this.fullRatio()); this.drawNow(); }, 300);
    }
    this.lastMove = begin;
    this.drawNow();
    const {context} = this;
    context.readPixels(0, 0, 1, 1, context.RGBA, context.UNSIGNED_BYTE, new Uint8Array(4)); // waits for the picture
    this.isSlow = this.isSlow || performance.now() - begin > slow;
  }

  /** Pixels of the picture to one of the page: two and more smooth the edges, and can be spared. */
  fullRatio() { return Math.max(window.devicePixelRatio || 1, 2); }

  resolve(ratio) {
    if (this.renderer.getPixelRatio() !== ratio) {
      this.renderer.setPixelRatio(ratio);
    }
  }

  shape() { return {width: this.canvas.clientWidth || 1, height: this.canvas.clientHeight || 1}; }

  /** Fits the picture into its place on the page. */
  fit() {
    if (this.canvas.clientWidth === 0) { // while the page prints
      return;
    }
    const {width, height} = this.shape();
    const up = 0.6 * this.size * Math.max(1, height / width);
    const across = up * width / height;
    Object.assign(this.camera, {left: -across, right: across, top: up, bottom: -up});
    this.camera.updateProjectionMatrix();
    this.resolve(this.fullRatio());
    this.renderer.setSize(width, height, false);
    this.overlay.width = this.canvas.width;
    this.overlay.height = this.canvas.height;
    if (!this.isFitted) {
      this.isFitted = true;
      this.showAll(views[3].from);
    }
    this.drawNow();
  }

  /** The picture with all that is drawn over it. */
  compose() {
    this.resolve(this.fullRatio());
    this.drawNow();
    const {width, height} = this.canvas;
    const picture = Object.assign(document.createElement("canvas"), {width, height, className: "printed"});
    const target = picture.getContext("2d");
    target.fillStyle = colour("--paper");
    target.fillRect(0, 0, width, height);
    target.drawImage(this.canvas, 0, 0);
    target.drawImage(this.overlay, 0, 0);
    return picture;
  }

  savePicture() {
    this.compose().toBlob(blob => {
      const link = document.createElement("a");
      link.href = URL.createObjectURL(blob);
      link.download = (document.title.replace(/[^\p{L}\p{N}._-]+/gu, "_") || "picture") + ".png";
      link.click();
      setTimeout(() => URL.revokeObjectURL(link.href), 10000);
    });
  }

  // ---- The view ----

  /** The pixel of a point [m], from the upper left. */
  project(point) {
    const p = new THREE.Vector3(...point).project(this.camera);
    const {width, height} = this.shape();
    return {x: (p.x + 1) / 2 * width, y: (1 - p.y) / 2 * height};
  }

  /** From the target to the camera. */
  direction() { return this.camera.position.clone().sub(this.controls.target).normalize().toArray(); }

  lookFrom(from, target = this.middle) {
    this.controls.target.copy(target);
    this.camera.position.copy(target).addScaledVector(new THREE.Vector3(...from).normalize(), 2.5 * this.size);
    this.controls.update();
    this.camera.updateMatrixWorld();
    this.draw();
  }

  zoomTo(zoom) {
    this.camera.zoom = Math.min(this.controls.maxZoom, Math.max(this.controls.minZoom, zoom));
    this.camera.updateProjectionMatrix();
    this.draw();
  }

  zoomBy(factor) { this.zoomTo(this.camera.zoom * factor); }

  /** Looks at the middle, so that the stage's box and its axes fill the picture. */
  showAll(from = this.direction()) {
    const {low, high} = this;
    const room = {x: 180, y: 130}; // px, for axes and scale
    this.lookFrom(from);
    this.zoomTo(1);
    const {width, height} = this.shape();
    const corners = [0, 1, 2, 3, 4, 5, 6, 7].map(corner =>
      this.project(low.map((l, axis) => (corner >> axis & 1 ? high[axis] : l))));
    const across = Math.max(...corners.map(p => Math.abs(2 * p.x - width)), 1);
    const upwards = Math.max(...corners.map(p => Math.abs(2 * p.y - height)), 1);
    this.zoomTo(Math.max(0.5, Math.min((width - room.x) / across, (height - room.y) / upwards)));
  }

  /** Looks at a place, which is so wide [m], from where the camera is. */
  goTo(point, width) {
    this.zoomTo(Math.max(1, 0.35 * this.size / (width || this.size)));
    this.lookFrom(this.direction(), new THREE.Vector3(...point));
  }

  turnBy(across, upwards) {
    const [x, y, z] = this.direction();
    const around = Math.atan2(y, x) + across;
    const above = Math.max(-1.57, Math.min(1.57, Math.atan2(z, Math.hypot(x, y)) + upwards));
    this.lookFrom([Math.cos(above) * Math.cos(around), Math.cos(above) * Math.sin(around), Math.sin(above)],
      this.controls.target.clone());
  }

  moveBy(right, upwards) {
    const step = 0.1 * this.camera.top / this.camera.zoom;
    const shift = new THREE.Vector3(right * step, upwards * step, 0).applyQuaternion(this.camera.quaternion);
    this.lookFrom(this.direction(), this.controls.target.clone().add(shift));
  }

  // ---- The reader ----

  press(event) {
    const arrow = {ArrowLeft: [-1, 0], ArrowRight: [1, 0], ArrowUp: [0, 1], ArrowDown: [0, -1]}[event.key];
    const view = views.find(each => each.key === event.key);
    const act = arrow && event.shiftKey ? () => this.moveBy(...arrow)
      : arrow ? () => this.turnBy(0.1 * arrow[0], 0.1 * arrow[1])
      : view ? () => this.showAll(view.from)
      : {"0": () => this.showAll(), Home: () => this.showAll(), "+": () => this.zoomBy(1.25),
        "=": () => this.zoomBy(1.25), "-": () => this.zoomBy(0.8)}[event.key];
    if (act && !event.ctrlKey && !event.altKey && !event.metaKey) {
      act();
      event.preventDefault();
    }
  }

  /** `pick(raycaster)` is called for a click or tap that does not turn the picture. */
  onPick(pick) { this.picks.push(pick); }

  listenToClicks() {
    let pressed = null;
    this.canvas.addEventListener("pointerdown", event => { pressed = event; });
    this.canvas.addEventListener("pointerup", event => {
      const isClick = pressed && pressed.button === 0 &&
        Math.hypot(event.clientX - pressed.clientX, event.clientY - pressed.clientY) < 5;
      pressed = null;
      if (isClick) {
        const place = this.canvas.getBoundingClientRect();
        const ray = new THREE.Raycaster();
        ray.setFromCamera({x: 2 * (event.clientX - place.left) / place.width - 1,
          y: 1 - 2 * (event.clientY - place.top) / place.height}, this.camera);
        this.picks.forEach(pick => pick(ray));
      }
    });
  }

  listenToPage() {
    // Dark pages print light, and a copy of the picture, since sizes differ on paper.
    let printed = null;
    addEventListener("beforeprint", () => {
      document.documentElement.dataset.print = "";
      printed = this.compose();
      this.element.append(printed);
    });
    addEventListener("afterprint", () => {
      delete document.documentElement.dataset.print;
      printed.remove();
      this.draw();
    });
    matchMedia("(prefers-color-scheme: dark)").addEventListener("change", () => this.draw());
    new ResizeObserver(() => this.fit()).observe(this.canvas);
  }
}

/** A stage in `element`, or null, after a sentence for the reader, where the browser cannot draw. */
function makeStage(element, {low, high}) {
  const canvas = addElement(element, "canvas", {className: "view", tabIndex: 0});
  canvas.setAttribute("role", "img");
  canvas.setAttribute("aria-label", "Picture. Arrow keys turn it, with shift they move it, plus and minus zoom.");
  const context = canvas.getContext("webgl", {alpha: true, antialias: false, preserveDrawingBuffer: true});
  if (!context) {
    canvas.remove();
    addElement(element, "p", {textContent: "This browser cannot draw in three dimensions (WebGL). All else on this page can be read."});
    return null;
  }
  return new Stage(element, canvas, context, low, high);
}

/** A bar of a round length at the lower left; `metres` is the height of the picture. */
function drawScale(paint, {width, height}, metres) {
  const pixels = height / metres;
  const length = roundBelow(Math.min(140, width / 3) / pixels);
  const y = height - 14;
  const end = 12 + length * pixels;
  paint.lineWidth = 2;
  paint.strokeStyle = colour("--ink");
  paint.beginPath();
  paint.moveTo(12, y - 4);
  paint.lineTo(12, y);
  paint.lineTo(end, y);
  paint.lineTo(end, y - 4);
  paint.stroke();
  drawText(paint, shortNumber(length) + " m", {x: end + 6, y: y - 3}, "left");
}

/** Adds a button to the toolbar of a stage. Returns it. */
function addToolbar(stage, label, title, onClick) {
  const button = addElement(stage.toolbar, "button", {type: "button", textContent: label, title});
  button.setAttribute("aria-label", title);
  button.addEventListener("click", onClick);
  return button;
}
