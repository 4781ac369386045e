({hull: showHulls, project: showHulls, sea: showSea})[document.body.dataset.kind]();
