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
  const {low, high, project} = stage;
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
 * Makes a picture in three dimensions in `element`, seen in parallel projection with z upwards, of
 * what lies between the points `low` and `high` [m]. Nothing is drawn unless `draw` asks for it.
 * Returns null, after a sentence for the reader, where the browser cannot draw.
 */
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
  const renderer = new THREE.WebGLRenderer({canvas, context, alpha: true, preserveDrawingBuffer: true});
  renderer.setClearColor(0, 0);
  const overlay = addElement(element, "canvas", {className: "overlay"});
  overlay.setAttribute("aria-hidden", "true");
  const paper = overlay.getContext("2d");
  const toolbar = addElement(element, "div", {className: "toolbar"});
  toolbar.setAttribute("role", "toolbar");

  const size = Math.hypot(...high.map((h, i) => h - low[i])) || 1;
  const reach = size / 2;
  const middle = new THREE.Vector3(...low.map((l, i) => (l + high[i]) / 2));
  const scene = new THREE.Scene();
  const camera = new THREE.OrthographicCamera(-1, 1, 1, -1, -20 * reach, 20 * reach);
  camera.up.set(0, 0, 1);
  camera.add(new THREE.DirectionalLight(0xffffff, 0.75));
  camera.children[0].position.set(0.4, 0.7, 1);
  scene.add(camera, new THREE.HemisphereLight(0xffffff, 0xb0b0b0, 0.45));
  const controls = new THREE.OrbitControls(camera, canvas);
  controls.enableKeys = false;
  controls.maxZoom = 1e5;
  controls.minZoom = 0.02;

  const stage = {element, scene, camera, low, high, size};
  const overlays = [];
  const picks = [];
  const inks = [];
  let isAsked = false;

  stage.onOverlay = paint => overlays.push(paint);
  stage.onPick = pick => picks.push(pick);
  /** A material's colour follows the page's style, light or dark. */
  stage.follow = (material, name) => { inks.push({material, name}); return material; };
  stage.draw = () => {
    if (!isAsked) {
      isAsked = true;
      requestAnimationFrame(() => { isAsked = false; drawMoving(); });
    }
  };
  const half = () => 1.2 * reach / camera.zoom;
  const shape = () => ({width: canvas.clientWidth || 1, height: canvas.clientHeight || 1});
  stage.project = point => {
    const p = new THREE.Vector3(...point).project(camera);
    const {width, height} = shape();
    return {x: (p.x + 1) / 2 * width, y: (1 - p.y) / 2 * height};
  };
  stage.drawNow = () => {
    for (const {material, name} of inks) {
      material.color.set(colour(name));
    }
    renderer.render(scene, camera);
    const {width, height} = shape();
    const ratio = fullRatio();
    paper.setTransform(ratio, 0, 0, ratio, 0, 0);
    paper.clearRect(0, 0, width, height);
    paper.font = "12px sans-serif";
    paper.textBaseline = "middle";
    for (const paint of overlays) {
      paint(paper, stage.project);
    }
  };
  // Two pixels and more to one of the page smooth the edges, and can be spared where that is slow.
  const fullRatio = () => Math.max(window.devicePixelRatio || 1, 2);
  const resolve = ratio => {
    if (renderer.getPixelRatio() !== ratio) {
      renderer.setPixelRatio(ratio);
    }
  };
  // Where drawing takes long, as without a graphics card, the picture is coarse while it moves.
  const slow = 80; // ms
  let isSlow = false;
  let lastMove = 0;
  let rest = 0;
  const drawMoving = () => {
    const begin = performance.now();
    const isMoving = begin - lastMove < 3000;
    lastMove = begin;
    if (isSlow && isMoving) {
      resolve(0.5);
      clearTimeout(rest);
      rest = setTimeout(() => { resolve(fullRatio()); stage.drawNow(); }, 300);
    }
    stage.drawNow();
    context.readPixels(0, 0, 1, 1, context.RGBA, context.UNSIGNED_BYTE, new Uint8Array(4)); // waits for the picture
    isSlow = isSlow || performance.now() - begin > slow;
  };
  const fit = () => {
    const {width, height} = shape();
    const up = 1.2 * reach * Math.max(1, height / width);
    Object.assign(camera, {left: -up * width / height, right: up * width / height, top: up, bottom: -up});
    camera.updateProjectionMatrix();
    resolve(fullRatio());
    renderer.setSize(width, height, false);
    overlay.width = canvas.width;
    overlay.height = canvas.height;
    stage.drawNow();
  };

  /** From the target to the camera. */
  stage.direction = () => camera.position.clone().sub(controls.target).normalize().toArray();
  stage.onOverlay(paint => paintAxes(paint, stage));
  stage.onOverlay(paint => drawScale(paint, shape(), (camera.top - camera.bottom) / camera.zoom));

  stage.lookFrom = (from, target = middle) => {
    controls.target.copy(target);
    camera.position.copy(target).addScaledVector(new THREE.Vector3(...from).normalize(), 5 * reach);
    controls.update();
    stage.draw();
  };
  stage.showAll = () => {
    camera.zoom = 1;
    camera.updateProjectionMatrix();
    stage.lookFrom(stage.direction());
  };
  /** Looks at a place of that size [m] from where the camera is. */
  stage.goTo = (point, width) => {
    camera.zoom = Math.max(1, 0.35 * stage.size / (width || stage.size));
    camera.updateProjectionMatrix();
    stage.lookFrom(stage.direction(), new THREE.Vector3(...point));
  };
  stage.zoomBy = factor => {
    camera.zoom = Math.min(controls.maxZoom, Math.max(controls.minZoom, camera.zoom * factor));
    camera.updateProjectionMatrix();
    stage.draw();
  };
  const turnBy = (across, upwards) => {
    const offset = camera.position.clone().sub(controls.target);
    const flat = Math.hypot(offset.x, offset.y);
    const around = Math.atan2(offset.y, offset.x) + across;
    const above = Math.max(-1.57, Math.min(1.57, Math.atan2(offset.z, flat) + upwards));
    stage.lookFrom([Math.cos(above) * Math.cos(around), Math.cos(above) * Math.sin(around), Math.sin(above)],
      controls.target.clone());
  };
  const moveBy = (right, upwards) => {
    const unit = 0.2 * half();
    const shift = new THREE.Vector3(right * unit, upwards * unit, 0).applyQuaternion(camera.quaternion);
    stage.lookFrom(stage.direction(), controls.target.clone().add(shift));
  };
  stage.savePicture = () => {
    resolve(fullRatio());
    stage.drawNow();
    const picture = document.createElement("canvas");
    picture.width = canvas.width;
    picture.height = canvas.height;
    const target = picture.getContext("2d");
    target.fillStyle = colour("--paper");
    target.fillRect(0, 0, picture.width, picture.height);
    target.drawImage(canvas, 0, 0);
    target.drawImage(overlay, 0, 0);
    picture.toBlob(blob => {
      const link = document.createElement("a");
      link.href = URL.createObjectURL(blob);
      link.download = (document.title.replace(/[^\p{L}\p{N}._-]+/gu, "_") || "picture") + ".png";
      link.click();
      setTimeout(() => URL.revokeObjectURL(link.href), 10000);
    });
  };

  for (const view of views) {
    addToolbar(stage, view.name, "View from: " + view.name + " (key " + view.key + ")", () => stage.lookFrom(view.from));
  }
  addToolbar(stage, "All", "Show all (key 0)", stage.showAll);
  addToolbar(stage, "+", "Zoom in (key +)", () => stage.zoomBy(1.25));
  addToolbar(stage, "\u2212", "Zoom out (key -)", () => stage.zoomBy(0.8));
  addToolbar(stage, "PNG", "Save the picture as PNG", stage.savePicture);

  const arrows = {ArrowLeft: [-1, 0], ArrowRight: [1, 0], ArrowUp: [0, 1], ArrowDown: [0, -1]};
  canvas.addEventListener("keydown", event => {
    const view = views.find(each => each.key === event.key);
    const arrow = arrows[event.key];
    if (event.ctrlKey || event.altKey || event.metaKey) {
      return;
    } else if (arrow) {
      event.shiftKey ? moveBy(...arrow) : turnBy(0.1 * arrow[0], 0.1 * arrow[1]);
    } else if (view) {
      stage.lookFrom(view.from);
    } else if (event.key === "0" || event.key === "Home") {
      stage.showAll();
    } else if (event.key === "+" || event.key === "=") {
      stage.zoomBy(1.25);
    } else if (event.key === "-") {
      stage.zoomBy(0.8);
    } else {
      return;
    }
    event.preventDefault();
  });

  let pressed = null;
  canvas.addEventListener("pointerdown", event => { pressed = event; });
  canvas.addEventListener("pointerup", event => {
    const isClick = pressed && pressed.button === 0 &&
      Math.hypot(event.clientX - pressed.clientX, event.clientY - pressed.clientY) < 5;
    pressed = null;
    if (isClick) {
      const place = canvas.getBoundingClientRect();
      const ray = new THREE.Raycaster();
      ray.setFromCamera({x: 2 * (event.clientX - place.left) / place.width - 1,
        y: 1 - 2 * (event.clientY - place.top) / place.height}, camera);
      picks.forEach(pick => pick(ray));
    }
  });
  controls.addEventListener("change", stage.draw);
  matchMedia("(prefers-color-scheme: dark)").addEventListener("change", stage.draw);
  // Dark pages print light.
  addEventListener("beforeprint", () => { document.documentElement.dataset.print = ""; stage.drawNow(); });
  addEventListener("afterprint", () => { delete document.documentElement.dataset.print; stage.drawNow(); });
  new ResizeObserver(fit).observe(canvas);
  stage.lookFrom(views[3].from);
  return stage;
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

/** A button of the stage's toolbar, in front of earlier ones' end. Returns it. */
function addToolbar(stage, label, title, onClick) {
  const button = addElement(stage.element.querySelector(".toolbar"), "button", {type: "button", textContent: label, title});
  button.setAttribute("aria-label", title);
  button.addEventListener("click", onClick);
  return button;
}
