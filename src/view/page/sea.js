/** From the deepest trough to the highest crest. Lightness ascends, so that it shows without colour too. */
const seaColours = [[0, 28, 66], [0, 84, 143], [45, 150, 205], [148, 208, 232], [252, 247, 214]];

/** Red, green and blue for a share of the ramp from 0 to 1. */
function seaColour(share) {
  const place = Math.max(0, Math.min(1, share)) * (seaColours.length - 1);
  const i = Math.min(Math.floor(place), seaColours.length - 2);
  return seaColours[i].map((value, k) => value + (seaColours[i + 1][k] - value) * (place - i));
}

/** The surface of the page: its frames, and the one that is drawn. */
class ShownSea {
  constructor(section) {
    this.columns = Number(section.dataset.columns);
    this.rows = Number(section.dataset.rows);
    this.peak = Number(section.dataset.peak);
    this.x = numbersOf("sea-x", Float32Array);
    this.y = numbersOf("sea-y", Float32Array);
    this.times = numbersOf("sea-times", Float32Array);
    this.frames = numbersOf("sea-frames", Int16Array);
    this.factor = 1; // of heights
    this.elevations = new Float32Array(this.columns * this.rows); // m, of the frame that is drawn
    this.ramp = new Float32Array(3 * 513);
    for (let i = 0; i <= 512; ++i) {
      this.ramp.set(seaColour(i / 512), 3 * i);
    }
    this.mesh = this.makeMesh();
  }

  get low() { return [Math.min(this.x[0], this.x[this.columns - 1]), Math.min(this.y[0], this.y[this.rows - 1]), 0]; }
  get high() { return [Math.max(this.x[0], this.x[this.columns - 1]), Math.max(this.y[0], this.y[this.rows - 1]), 0]; }

  makeMesh() {
    const {columns, rows, x, y} = this;
    const points = new Float32Array(3 * columns * rows);
    const index = new Uint32Array(6 * (columns - 1) * (rows - 1));
    for (let j = 0, node = 0, next = 0; j < rows; ++j) {
      for (let i = 0; i < columns; ++i, ++node) {
        points[3 * node] = x[i];
        points[3 * node + 1] = y[j];
        if (i + 1 < columns && j + 1 < rows) {
          index.set([node, node + 1, node + columns, node + 1, node + columns + 1, node + columns], next);
          next += 6;
        }
      }
    }
    const geometry = new THREE.BufferGeometry();
    geometry.setAttribute("position", new THREE.BufferAttribute(points, 3).setUsage(THREE.DynamicDrawUsage));
    geometry.setAttribute("color", new THREE.BufferAttribute(new Uint8Array(points.length), 3, true).setUsage(THREE.DynamicDrawUsage));
    geometry.setIndex(new THREE.BufferAttribute(index, 1));
    // Wide enough for all frames, so that it need not be found anew.
    geometry.boundingSphere = new THREE.Sphere(new THREE.Vector3(), 1e9);
    const mesh = new THREE.Mesh(geometry, new THREE.MeshBasicMaterial({vertexColors: THREE.VertexColors, side: THREE.DoubleSide}));
    mesh.frustumCulled = false;
    return mesh;
  }

  /** The time [s] at a place between frames. */
  timeAt(place) {
    const i = Math.min(Math.floor(place), this.times.length - 1);
    const next = Math.min(i + 1, this.times.length - 1);
    return this.times[i] + (this.times[next] - this.times[i]) * (place - i);
  }

  /** The place that is `seconds` after another one. */
  placeAfter(place, seconds) {
    const wanted = this.timeAt(place) + seconds;
    let i = Math.floor(place);
    while (i + 1 < this.times.length && this.times[i + 1] <= wanted) {
      ++i;
    }
    return i + 1 < this.times.length ? i + (wanted - this.times[i]) / (this.times[i + 1] - this.times[i]) : i;
  }

  /** Puts the surface at a place between frames into the picture. */
  show(place) {
    const {elevations, frames} = this;
    const nodes = elevations.length;
    const first = Math.floor(place) * nodes;
    const second = Math.min(Math.floor(place) + 1, this.times.length - 1) * nodes;
    const share = place - Math.floor(place);
    const unit = this.peak / 32767;
    for (let i = 0; i < nodes; ++i) {
      const value = frames[first + i];
      elevations[i] = unit * (value + (frames[second + i] - value) * share);
    }
    this.paint();
  }

  /** Heights and colours of the nodes; slopes that face the light are brighter. */
  paint() {
    const {columns, rows, x, y, elevations, factor, ramp} = this;
    const points = this.mesh.geometry.attributes.position;
    const colours = this.mesh.geometry.attributes.color;
    const perMetre = this.peak > 0 ? 256 / this.peak : 0;
    const acrossX = factor * (columns - 1) / (x[columns - 1] - x[0] || 1);
    const acrossY = factor * (rows - 1) / (y[rows - 1] - y[0] || 1);
    for (let j = 0, node = 0; j < rows; ++j) {
      const up = j > 0 ? columns : 0;
      const down = j + 1 < rows ? columns : 0;
      for (let i = 0; i < columns; ++i, ++node) {
        const left = i > 0 ? 1 : 0;
        const right = i + 1 < columns ? 1 : 0;
        const slopeX = (elevations[node + right] - elevations[node - left]) / (left + right) * acrossX;
        const slopeY = (elevations[node + down] - elevations[node - up]) / ((up + down) / columns) * acrossY;
        const facing = (0.8 + 0.5 * slopeX + 0.33 * slopeY) / Math.sqrt(1 + slopeX * slopeX + slopeY * slopeY);
        const light = Math.max(0.45, Math.min(1.12, 0.6 + 0.5 * facing));
        const place = 3 * Math.round(256 + perMetre * elevations[node]);
        points.array[3 * node + 2] = factor * elevations[node];
        for (let k = 0; k < 3; ++k) {
          colours.array[3 * node + k] = Math.min(255, light * ramp[place + k]);
        }
      }
    }
    points.needsUpdate = true;
    colours.needsUpdate = true;
  }

  /** The elevation [m] that is drawn at a place on the grid. */
  elevationAt(x, y) {
    const split = (value, list) => {
      const place = (value - list[0]) / (list[list.length - 1] - list[0] || 1) * (list.length - 1);
      const i = Math.max(0, Math.min(list.length - 2, Math.floor(place)));
      return [i, Math.max(0, Math.min(1, place - i))];
    };
    const [i, shareX] = split(x, this.x);
    const [j, shareY] = split(y, this.y);
    const along = row => {
      const value = this.elevations[row * this.columns + i];
      return value + (this.elevations[row * this.columns + i + 1] - value) * shareX;
    };
    return along(j) + (along(j + 1) - along(j)) * shareY;
  }
}

/** What the colours mean, and how high waves are drawn, in the upper left corner. */
function paintLegend(paint, sea) {
  const [left, top, width, height] = [12, 18, 14, 110];
  const gradient = paint.createLinearGradient(0, top, 0, top + height);
  seaColours.forEach((value, i) => {
    gradient.addColorStop(1 - i / (seaColours.length - 1), "rgb(" + value.join(",") + ")");
  });
  paint.fillStyle = gradient;
  paint.fillRect(left, top, width, height);
  paint.strokeStyle = colour("--ink");
  paint.lineWidth = 1;
  paint.strokeRect(left, top, width, height);
  [[1, 0], [0, 0.5], [-1, 1]].forEach(([share, place]) => {
    const text = (share > 0 ? "+" : "") + shortNumber(share * sea.peak, 3).replace("-", "\u2212") + " m";
    drawText(paint, text, {x: left + width + 6, y: top + place * height}, "left");
  });
  const factor = sea.factor === 1 ? "Heights are true" : "Heights are drawn " + sea.factor + " times";
  drawText(paint, factor, {x: left, y: top + height + 16}, "left");
}

/** A pole on the surface with a name on top. */
function paintPole(paint, project, sea, stage, {x, y, name}) {
  const z = sea.factor * sea.elevationAt(x, y);
  const foot = project([x, y, z]);
  const top = project([x, y, Math.max(0.06 * stage.size, z + 0.03 * stage.size)]);
  paint.strokeStyle = colour("--ink");
  paint.fillStyle = colour("--ink");
  paint.lineWidth = 1.5;
  paint.beginPath();
  paint.moveTo(foot.x, foot.y);
  paint.lineTo(top.x, top.y);
  paint.stroke();
  paint.beginPath();
  paint.arc(foot.x, foot.y, 3.5, 0, 2 * Math.PI);
  paint.fill();
  drawText(paint, name, {x: top.x, y: top.y - 8});
}

/** Lines in the figures of series that a script moves: a function of the time [s]. */
function makeCursors() {
  const cursors = [...document.querySelectorAll(".series svg.figure")].map(picture => {
    const line = document.createElementNS("http://www.w3.org/2000/svg", "line");
    const {y, height} = picture.querySelector(".axis").getBBox();
    line.setAttribute("class", "cursor");
    line.setAttribute("y1", y);
    line.setAttribute("y2", y + height);
    picture.append(line);
    return {line, ...Object.fromEntries(["x0", "x1", "left", "right"].map(key => [key, Number(picture.dataset[key])]))};
  });
  return time => {
    for (const {line, x0, x1, left, right} of cursors) {
      const x = left + (time - x0) / (x1 - x0) * (right - left);
      line.setAttribute("x1", x);
      line.setAttribute("x2", x);
    }
  };
}

/** Time runs while the page plays: from `place()`, through `goTo(place)`, until the last frame. */
function makePlayer(sea, place, goTo, onChange) {
  const isCalm = matchMedia("(prefers-reduced-motion: reduce)");
  let former = null; // time of the clock [ms]; null while it is paused
  let speed = 1;
  const setPlaying = isPlaying => {
    former = isPlaying ? performance.now() : null;
    onChange(isPlaying);
    if (isPlaying) {
      requestAnimationFrame(step);
    }
  };
  const step = () => {
    if (former === null) {
      return;
    }
    const now = performance.now();
    const passed = Math.min(now - former, 1000) / 1000;
    // For those who ask for less motion: two still pictures a second.
    if (!isCalm.matches || passed >= 0.5) {
      former = now;
      goTo(sea.placeAfter(place(), passed * speed));
    }
    if (place() >= sea.times.length - 1) {
      setPlaying(false);
    } else {
      requestAnimationFrame(step);
    }
  };
  return {
    isPlaying: () => former !== null,
    setSpeed: factor => { speed = factor; },
    toggle: () => {
      if (former === null && place() >= sea.times.length - 1) {
        goTo(0);
      }
      setPlaying(former === null && sea.times.length > 1);
    },
  };
}

/** What a page of a surface shows at the moment: a place between frames, and a spot that was clicked. */
class SeaView {
  constructor(sea, stage) {
    Object.assign(this, {sea, stage, place: 0, spot: null});
    for (const name of ["controls", "play", "time", "now", "picked", "height", "speed"]) {
      this[name] = document.getElementById("sea-" + name);
    }
    this.moveCursors = makeCursors();
    this.probes = [...document.querySelectorAll(".series")].map(({dataset}) =>
      ({name: dataset.name, x: Number(dataset.x), y: Number(dataset.y)}));
    this.player = makePlayer(sea, () => this.place, place => this.goTo(place), isPlaying => {
      this.play.textContent = isPlaying ? "Pause" : "Play";
      this.picked.setAttribute("aria-live", isPlaying ? "off" : "polite");
    });
  }

  goTo(place) {
    const {sea, time, now} = this;
    this.place = place;
    sea.show(place);
    const seconds = sea.timeAt(place);
    time.value = Math.round(place);
    now.value = seconds.toFixed(2) + " s";
    time.setAttribute("aria-valuetext", now.value);
    this.moveCursors(seconds);
    this.tellSpot();
    this.stage.draw();
  }

  tellSpot() {
    if (this.spot) {
      const {x, y} = this.spot;
      this.picked.textContent = "x = " + x.toFixed(2) + " m, y = " + y.toFixed(2) + " m: elevation " +
        this.sea.elevationAt(x, y).toFixed(3) + " m at " + this.now.value;
    }
  }

  setHeights() {
    this.sea.factor = Number(this.height.value);
    this.goTo(this.place);
  }

  pick(ray) {
    const hit = ray.intersectObject(this.sea.mesh)[0];
    if (hit) {
      this.spot = {x: hit.point.x, y: hit.point.y, name: ""};
      this.goTo(this.place);
    }
  }

  paint(paint, project) {
    paintLegend(paint, this.sea);
    const poles = this.spot ? [...this.probes, this.spot] : this.probes;
    poles.forEach(pole => paintPole(paint, project, this.sea, this.stage, pole));
  }

  connect() {
    this.play.addEventListener("click", this.player.toggle);
    this.time.addEventListener("input", () => this.goTo(Number(this.time.value)));
    this.height.addEventListener("change", () => this.setHeights());
    this.speed.addEventListener("change", () => this.player.setSpeed(Number(this.speed.value)));
    document.addEventListener("keydown", event => {
      if (event.key === " " && !event.target.closest("button, input, select, a, summary")) {
        event.preventDefault();
        this.player.toggle();
      }
    });
    this.stage.onPick(ray => this.pick(ray));
    this.stage.onOverlay((paint, project) => this.paint(paint, project));
    this.controls.hidden = false;
  }
}

/** Runs the page of a surface; one of series only needs no script. */
function showSea() {
  const section = document.querySelector(".stage");
  const sea = section ? new ShownSea(section) : null;
  const stage = sea ? makeStage(section, sea) : null;
  if (stage) {
    stage.scene.add(sea.mesh);
    const view = new SeaView(sea, stage);
    view.connect();
    view.setHeights();
  }
}
